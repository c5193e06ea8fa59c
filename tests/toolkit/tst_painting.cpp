// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/theme.h"

#include <QPaintEvent>
#include <QTest>

using namespace Touch;

namespace {

/** Counts its paintings. */
class Painted : public Label
{
public:
    using Label::Label;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        ++count;
        Label::paint(painter, option, widget);
    }

    int count = 0;
};

/** Gathers what of a window is painted. */
class PaintSpy : public QObject
{
public:
    explicit PaintSpy(Window *window) { window->viewport()->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    QRegion region;
};

} // namespace

/** Only what has changed is painted, and what is prepared for painting is kept. */
class TestPainting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aChangedLabelIsPaintedAlone();
    void theSameTextPaintsNothing();
    void aSwitchPaintsItself();
    void nothingIsPaintedWhileHidden();
    void iconsAreRenderedOnce();

private:
    void settle() const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    Painted *m_changing = nullptr;
    Painted *m_other = nullptr;
    Switch *m_switch = nullptr;
};

void TestPainting::init()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    m_changing = new Painted(QStringLiteral("10:40"), m_page.get());
    m_changing->setGeometry(QRectF(20, 40, 200, 40));
    m_other = new Painted(QStringLiteral("Alarms"), m_page.get());
    m_other->setGeometry(QRectF(20, 200, 200, 40));
    m_switch = new Switch(m_page.get());
    m_switch->setGeometry(QRectF(300, 400, 60, 48));
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_changing->count > 0 && m_other->count > 0);
    settle();
}

void TestPainting::cleanup()
{
    m_page.reset();
    m_window.reset();
}

void TestPainting::settle() const
{
    // The first change after a window is shown still paints all of it.
    PaintSpy spy(m_window.get());
    m_changing->update();
    QVERIFY(QTest::qWaitFor([&spy] { return !spy.region.isEmpty(); }));
}

void TestPainting::aChangedLabelIsPaintedAlone()
{
    const PaintSpy spy(m_window.get());
    const int others = m_other->count;
    const int before = m_changing->count;
    m_changing->setText(QStringLiteral("10:41"));
    QTRY_COMPARE(m_changing->count, before + 1);
    QCOMPARE(m_other->count, others);
    const QRect place = m_changing->sceneBoundingRect().toAlignedRect().adjusted(-2, -2, 2, 2);
    QVERIFY2(place.contains(spy.region.boundingRect()), "more was painted than the label");
}

void TestPainting::theSameTextPaintsNothing()
{
    const PaintSpy spy(m_window.get());
    m_changing->setText(m_changing->text());
    QCoreApplication::processEvents();
    QVERIFY(spy.region.isEmpty());
}

void TestPainting::aSwitchPaintsItself()
{
    const PaintSpy spy(m_window.get());
    m_switch->click();
    QTRY_VERIFY(!spy.region.isEmpty());
    const QRect place = m_switch->sceneBoundingRect().toAlignedRect().adjusted(-2, -2, 2, 2);
    QVERIFY(place.contains(spy.region.boundingRect()));
}

void TestPainting::nothingIsPaintedWhileHidden()
{
    m_window->hide();
    QVERIFY(!m_changing->isOnDisplay());
    const PaintSpy spy(m_window.get());
    m_changing->setText(QStringLiteral("10:42"));
    QCoreApplication::processEvents();
    QVERIFY(spy.region.isEmpty());
}

void TestPainting::iconsAreRenderedOnce()
{
    const auto icon = [](int side) {
        return Theme::instance().icon(QStringLiteral("icon-m-common-done"), QSize(side, side), Qt::red).cacheKey();
    };
    QCOMPARE(icon(24), icon(24));
    QVERIFY(icon(24) != icon(36));
}

QTEST_MAIN(TestPainting)
#include "tst_painting.moc"
