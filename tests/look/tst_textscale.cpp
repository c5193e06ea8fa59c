// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/utility.h"
#include "editor/settingalarmpage.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/theme.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/look/touchtargets.h"
#include "tests/support/privatebus.h"

#include <QDir>
#include <QTest>
#include <QTranslator>

using Touch::Theme;

/** On a narrow phone with text of double size, all that could be read before still can. */
class TestTextScale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void theMainPageShowsAllOfItsTexts_data() { addLooks(); }
    void theMainPageShowsAllOfItsTexts();
    void theEditorShowsAllOfItsTexts_data() { addLooks(); }
    void theEditorShowsAllOfItsTexts();
    void anAlarmRowGrows();

private:
    static void addLooks();
    static void takeLook();
    void settle(qreal textScale);
    bool save(const char *what);
    QStringList cutOff() const;
    bool canBeReached(const QGraphicsItem *item) const;

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QTranslator m_catalogue;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_mainPage;
};

void TestTextScale::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_US.UTF-8");
    QVERIFY(Support::loadLook());
    QVERIFY(m_catalogue.load(":/translations/clock_en.qm"));
    QVERIFY(QCoreApplication::installTranslator(&m_catalogue));
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    Clock::Utility::instance()->subscribeToContextFramework();
    QTRY_VERIFY(Clock::Utility::instance()->isTriggerMapReceived());
    QVERIFY(Support::addAlarm(QTime(6, 30), "Morning run", {1, 2, 3, 4, 5}));
    QVERIFY(Support::addAlarm(QTime(22, 45), "Pills"));
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->resize(360, 760);
    m_mainPage = std::make_unique<MashupPage>();
    m_mainPage->appear(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestTextScale::cleanup()
{
    Theme::instance().setTextScale(1);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestTextScale::addLooks()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("light") << Theme::Variant::Light << Qt::LeftToRight;
    QTest::newRow("light-mirrored") << Theme::Variant::Light << Qt::RightToLeft;
    QTest::newRow("dark") << Theme::Variant::Dark << Qt::LeftToRight;
    QTest::newRow("dark-mirrored") << Theme::Variant::Dark << Qt::RightToLeft;
}

void TestTextScale::takeLook()
{
    QFETCH(const Theme::Variant, variant);
    QFETCH(const Qt::LayoutDirection, direction);
    Theme::instance().setVariant(variant);
    QGuiApplication::setLayoutDirection(direction);
}

void TestTextScale::settle(qreal textScale)
{
    Theme::instance().setTextScale(textScale);
    // A new layout, then the rows of the list.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

bool TestTextScale::save(const char *what)
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QDir().mkpath(folder.path());
    const int percent = qRound(Theme::instance().textScale() * 100);
    return m_window->grab().save(folder.filePath(
        QStringLiteral("text-%1-%2-%3.png").arg(QLatin1String(what), QTest::currentDataTag()).arg(percent)));
}

/** In the window, or in what can be panned there. */
bool TestTextScale::canBeReached(const QGraphicsItem *item) const
{
    for (const QGraphicsItem *above = item; above; above = above->parentItem()) {
        const auto *viewport = qobject_cast<const Touch::PannableViewport *>(above->toGraphicsObject());
        if (viewport && viewport->panDirection().testFlag(Qt::Vertical))
            return viewport->widget()->rect().contains(viewport->widget()->mapRectFromItem(item, item->boundingRect()));
    }
    return QRectF(m_window->viewport()->rect()).contains(item->sceneBoundingRect());
}

QStringList TestTextScale::cutOff() const
{
    QStringList texts;
    const auto items = m_window->scene()->items();
    for (const QGraphicsItem *item : items) {
        const auto *object = item->toGraphicsObject();
        const auto *label = qobject_cast<const Touch::Label *>(object);
        if (label && label->isVisible() && !(label->showsWholeText() && canBeReached(label)))
            texts << label->text();
        const auto *button = qobject_cast<const Touch::Button *>(object);
        if (button && button->isVisible() && !(button->showsWholeText() && canBeReached(button)))
            texts << button->text();
    }
    return texts;
}

void TestTextScale::theMainPageShowsAllOfItsTexts()
{
    takeLook();
    QTRY_COMPARE(Support::countIn<AlarmListItem>(m_mainPage.get()), 2);
    for (const qreal textScale : {1.0, 1.5, 2.0}) {
        settle(textScale);
        QVERIFY(save("main"));
        QCOMPARE(cutOff(), QStringList());
        QCOMPARE(Support::tooSmallToTouch(m_window->scene()), QStringList());
    }
}

void TestTextScale::theEditorShowsAllOfItsTexts()
{
    takeLook();
    SettingAlarmPage editor;
    editor.loadAlarm(Support::addAlarm(QTime(22, 40), "Tea"), QTime(22, 40), "Tea", {}, true, 10);
    editor.appear(m_window.get());
    for (const qreal textScale : {1.0, 1.5, 2.0}) {
        settle(textScale);
        QVERIFY(save("editor"));
        QCOMPARE(cutOff(), QStringList());
        QCOMPARE(Support::tooSmallToTouch(m_window->scene()), QStringList());
    }
}

void TestTextScale::anAlarmRowGrows()
{
    settle(1);
    const auto *row = Support::itemIn<AlarmListItem>(m_mainPage.get());
    QVERIFY(row);
    const qreal height = row->size().height();
    Theme::instance().setTextScale(2);
    QTRY_VERIFY(Support::itemIn<AlarmListItem>(m_mainPage.get())->size().height() > 1.5 * height);
}

QTEST_MAIN(TestTextScale)
#include "tst_textscale.moc"
