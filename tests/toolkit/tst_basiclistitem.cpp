// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <memory>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

/** Has a layout of its own: the title alone, named. */
class OwnItem : public BasicListItem
{
public:
    explicit OwnItem(QGraphicsItem *parent)
        : BasicListItem(IconWithTitleAndSubtitle, parent)
    {
        // Asks for a new measure of what is not complete yet.
        setStyleName(QStringLiteral("CommonPanel"));
    }
    int created = 0;

protected:
    QGraphicsLayout *createLayout() override
    {
        ++created;
        auto *layout = new Layout(this);
        auto *grid = new GridLayoutPolicy(layout);
        titleLabel()->setObjectName(QStringLiteral("OwnTitle"));
        grid->addItem(titleLabel(), 0, 0);
        return layout;
    }
};

} // namespace

class TestBasicListItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hasTheNumbersOfItsStyles();
    void showsThePartsOfItsStyle_data();
    void showsThePartsOfItsStyle();
    void centresItsTexts_data();
    void centresItsTexts();
    void letsAnOverrideBuildTheLayoutOnce();
    void isMeasuredWithItsLayout();
    void isClickedByFingerAndKeys();
    void isNotClickedByAFingerThatLeaves();
    void namesItself();
    void mirrorsItsParts();

private:
    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    LinearLayoutPolicy *m_column = nullptr;
};

void TestBasicListItem::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    m_column = new LinearLayoutPolicy(new Layout(m_page->centralWidget()), Qt::Vertical);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestBasicListItem::cleanup()
{
    m_page.reset();
    m_window.reset();
}

void TestBasicListItem::hasTheNumbersOfItsStyles()
{
    QCOMPARE(int(BasicListItem::IconWithTitle), 2);
    QCOMPARE(int(BasicListItem::IconWithTitleAndSubtitle), 3);
}

void TestBasicListItem::showsThePartsOfItsStyle_data()
{
    QTest::addColumn<BasicListItem::ItemStyle>("style");
    QTest::addColumn<bool>("hasSubtitle");
    QTest::addColumn<bool>("hasIcon");
    QTest::newRow("title") << BasicListItem::SingleTitle << false << false;
    QTest::newRow("title, subtitle") << BasicListItem::TitleWithSubtitle << true << false;
    QTest::newRow("icon, title") << BasicListItem::IconWithTitle << false << true;
    QTest::newRow("icon, title, subtitle") << BasicListItem::IconWithTitleAndSubtitle << true << true;
}

void TestBasicListItem::showsThePartsOfItsStyle()
{
    QFETCH(BasicListItem::ItemStyle, style);
    QFETCH(bool, hasSubtitle);
    QFETCH(bool, hasIcon);
    auto *item = new BasicListItem(style);
    item->setTitle(QStringLiteral("Repeat"));
    item->setSubtitle(QStringLiteral("Never"));
    item->setImage(QStringLiteral("icon-m-common-alarm"));
    m_column->addItem(item);
    m_column->addStretch();
    QTRY_COMPARE(item->size().width(), 480.0);
    QVERIFY(item->size().height() >= 64);
    QVERIFY(item->titleLabel()->isVisible());
    QCOMPARE(item->subtitleLabel()->isVisible(), hasSubtitle);
    QCOMPARE(item->imageWidget()->isVisible(), hasIcon);
    if (hasSubtitle)
        QTRY_VERIFY(item->titleLabel()->geometry().bottom() <= item->subtitleLabel()->geometry().top());
    if (hasIcon)
        QTRY_VERIFY(item->imageWidget()->geometry().right() < item->titleLabel()->geometry().left());
}

void TestBasicListItem::centresItsTexts_data()
{
    showsThePartsOfItsStyle_data();
}

void TestBasicListItem::centresItsTexts()
{
    QFETCH(BasicListItem::ItemStyle, style);
    QFETCH(bool, hasSubtitle);
    auto *item = new BasicListItem(style);
    item->setTitle(QStringLiteral("Repeat"));
    item->setSubtitle(QStringLiteral("Never"));
    item->setPreferredHeight(120);
    m_column->addItem(item);
    m_column->addStretch();
    QTRY_COMPARE(item->size().height(), 120.0);
    QRectF texts = item->titleLabel()->geometry();
    if (hasSubtitle)
        texts |= item->subtitleLabel()->geometry();
    QVERIFY2(qAbs(texts.center().y() - 60) <= 3, qPrintable(QString::number(texts.center().y())));
    QVERIFY(texts.height() < 60);
}

void TestBasicListItem::letsAnOverrideBuildTheLayoutOnce()
{
    auto *item = new OwnItem(m_page->centralWidget());
    QCOMPARE(item->created, 0);
    m_column->addItem(item);
    QTRY_COMPARE(item->created, 1);
    QVERIFY(Support::itemIn<Label>(item, QStringLiteral("OwnTitle")));
    QTRY_COMPARE(item->titleLabel()->geometry().left(), item->style().padding.left());
    QVERIFY(!item->subtitleLabel()->isVisible());
    QVERIFY(!item->imageWidget()->isVisible());
    m_page->disappear();
    m_page->appear(m_window.get());
    QCOMPARE(item->created, 1);
}

void TestBasicListItem::isMeasuredWithItsLayout()
{
    Widget holder;
    auto *column = new LinearLayoutPolicy(new Layout(&holder), Qt::Vertical);
    auto *item = new OwnItem(&holder);
    item->setTitle(QStringLiteral("A title that is longer than nothing"));
    QCOMPARE(item->created, 0);
    column->addItem(item);
    QVERIFY(holder.effectiveSizeHint(Qt::PreferredSize).width() > 200);
    QCOMPARE(item->created, 1);
}

void TestBasicListItem::isClickedByFingerAndKeys()
{
    auto *item = new BasicListItem(BasicListItem::SingleTitle);
    m_column->addItem(item);
    QTRY_VERIFY(item->size().width() > 0);
    const QSignalSpy clicked(item, &BasicListItem::clicked);
    Finger::tap(*m_window, item);
    QCOMPARE(clicked.count(), 1);
    item->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Return);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QCOMPARE(clicked.count(), 3);
    item->doAccessibleAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 4);
}

void TestBasicListItem::isNotClickedByAFingerThatLeaves()
{
    auto *item = new BasicListItem(BasicListItem::SingleTitle);
    m_column->addItem(item);
    m_column->addStretch();
    QTRY_COMPARE(item->geometry(), QRectF(0, 0, 480, 64));
    const QSignalSpy clicked(item, &BasicListItem::clicked);
    Finger::press(*m_window, item, {100, 30});
    QVERIFY(item->isDown());
    Finger::moveTo(*m_window, item, {100, 300});
    QVERIFY(!item->isDown());
    Finger::release(*m_window, item, {100, 300});
    QCOMPARE(clicked.count(), 0);
}

void TestBasicListItem::namesItself()
{
    BasicListItem item(BasicListItem::TitleWithSubtitle);
    item.setTitle(QStringLiteral("Repeat"));
    QCOMPARE(item.accessibleName(), QStringLiteral("Repeat"));
    item.setSubtitle(QStringLiteral("Never"));
    QCOMPARE(item.accessibleName(), QStringLiteral("Repeat, Never"));
    BasicListItem single;
    single.setTitle(QStringLiteral("More"));
    single.setSubtitle(QStringLiteral("hidden"));
    m_column->addItem(&single);
    QTRY_COMPARE(single.accessibleName(), QStringLiteral("More"));
}

void TestBasicListItem::mirrorsItsParts()
{
    auto *item = new BasicListItem(BasicListItem::IconWithTitle);
    item->setTitle(QStringLiteral("Repeat"));
    item->setLayoutDirection(Qt::RightToLeft);
    m_column->addItem(item);
    QTRY_VERIFY(item->imageWidget()->geometry().left() > item->titleLabel()->geometry().right());
}

QTEST_MAIN(TestBasicListItem)
#include "tst_basiclistitem.moc"
