// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmeditorlistitem.h"

#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/theme.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"

#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Touch::ImageWidget;
using Touch::Label;

class TestAlarmEditorListItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void moreOptionsHaveATitleAndAnArrow();
    void aValueStandsBelowItsTitle();
    void itsGridHasNoMarginsAndNoSpacing();
    void everyPartHasItsCellOfTheGrid();
    void otherStylesStayEmpty_data();
    void otherStylesStayEmpty();
    void anEmptySubtitleKeepsTheHeight();
    void theArrowIsInTheMiddleOfTheHeight();
    void theArrowIsOnTheOtherSideFromRightToLeft();
    void theImageCanBeReplaced_data();
    void theImageCanBeReplaced();
    void aTapIsAClick();
    void theThemeReachesEveryPart_data();
    void theThemeReachesEveryPart();

private:
    AlarmEditorListItem *place(AlarmEditorListItem *item);
    template <typename T>
    static QRectF area(const T *part)
    {
        return part->sceneBoundingRect();
    }

    std::unique_ptr<Touch::ApplicationWindow> m_window;
};

void TestAlarmEditorListItem::initTestCase()
{
    QVERIFY(Support::loadLook());
}

void TestAlarmEditorListItem::init()
{
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

AlarmEditorListItem *TestAlarmEditorListItem::place(AlarmEditorListItem *item)
{
    item->setTitle("Title");
    auto *column = new Touch::Widget;
    (new Touch::LinearLayoutPolicy(new Touch::Layout(column), Qt::Vertical))->addItem(item);
    m_window->scene()->addItem(column);
    column->setGeometry(QRectF(QPointF(0, 0), QSizeF(400, column->effectiveSizeHint(Qt::PreferredSize).height())));
    QCoreApplication::sendPostedEvents();
    return item;
}

void TestAlarmEditorListItem::moreOptionsHaveATitleAndAnArrow()
{
    const auto *item = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(2)));
    QCOMPARE(item->styleName(), "CommonPanel");
    QCOMPARE(item->titleLabel()->styleName(), "CommonSingleTitle");
    QCOMPARE(item->titleLabel()->objectName(), "MoreOptionsTitle");
    QCOMPARE(item->imageWidget()->styleName(), "CommonDrillDownIcon");
    QCOMPARE(item->imageWidget()->objectName(), "MoreOptionsIcon");
    QCOMPARE(item->imageWidget()->image(), "icon-m-common-drilldown-arrow");
    QVERIFY(item->titleLabel()->isVisible());
    QVERIFY(item->imageWidget()->isVisible());
    QVERIFY(!item->subtitleLabel()->isVisible());
    QVERIFY(area(item->imageWidget()).left() >= area(item->titleLabel()).right());
    QVERIFY(item->layout());
    QVERIFY(area(item).contains(area(item->imageWidget())));
}

void TestAlarmEditorListItem::aValueStandsBelowItsTitle()
{
    auto *item = new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(3));
    item->setSubtitle("Value");
    place(item);
    QCOMPARE(item->titleLabel()->styleName(), "CommonSubTitleTop");
    QCOMPARE(item->titleLabel()->objectName(), "AlarmOptionTitleLabel");
    QCOMPARE(item->subtitleLabel()->styleName(), "CommonTitleBottom");
    QCOMPARE(item->subtitleLabel()->objectName(), "AlarmOptionSubTitle");
    QCOMPARE(item->imageWidget()->styleName(), "CommonComboBoxIcon");
    QCOMPARE(item->imageWidget()->objectName(), "AlarmOptionsIcon");
    QCOMPARE(item->imageWidget()->image(), "icon-m-common-combobox-arrow");
    QVERIFY(area(item->subtitleLabel()).top() >= area(item->titleLabel()).bottom());
    QCOMPARE(area(item->subtitleLabel()).left(), area(item->titleLabel()).left());
    QVERIFY(area(item->imageWidget()).left() >= area(item->subtitleLabel()).right());
}

void TestAlarmEditorListItem::itsGridHasNoMarginsAndNoSpacing()
{
    for (const int itemStyle : {2, 3}) {
        const auto *item = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(itemStyle)));
        const auto *layout = dynamic_cast<const Touch::Layout *>(item->layout());
        QVERIFY(layout);
        QCOMPARE(layout->policy()->contentsMargins(), QMarginsF());
        QCOMPARE(layout->policy()->spacing(), 0.0);
        // Two labels, the image, and below an empty place.
        QCOMPARE(layout->policy()->items().size(), itemStyle == 2 ? 2 : 4);
    }
}

void TestAlarmEditorListItem::everyPartHasItsCellOfTheGrid()
{
    using Cell = Touch::GridLayoutPolicy::Cell;
    constexpr auto leftAndCentred = Qt::AlignLeft | Qt::AlignVCenter;
    const auto gridOf = [](const AlarmEditorListItem *item) {
        return dynamic_cast<Touch::GridLayoutPolicy *>(static_cast<Touch::Layout *>(item->layout())->policy());
    };
    const auto *row = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(2)));
    const auto *grid = gridOf(row);
    QVERIFY(grid);
    QCOMPARE(grid->cellOf(row->titleLabel()), (Cell{0, 0, 1, 1, leftAndCentred}));
    QCOMPARE(grid->cellOf(row->imageWidget()), (Cell{0, 1, 1, 1, Qt::AlignCenter}));

    row = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(3)));
    grid = gridOf(row);
    QVERIFY(grid);
    QCOMPARE(grid->cellOf(row->titleLabel()), (Cell{0, 0, 1, 1, leftAndCentred}));
    QCOMPARE(grid->cellOf(row->subtitleLabel()), (Cell{1, 0, 1, 1, leftAndCentred}));
    QCOMPARE(grid->cellOf(row->imageWidget()), (Cell{0, 1, 3, 1, Qt::AlignCenter}));
    const QList<QGraphicsLayoutItem *> labelsAndImage{row->titleLabel(), row->subtitleLabel(), row->imageWidget()};
    QList<QGraphicsLayoutItem *> others = grid->items();
    others.removeIf([&](QGraphicsLayoutItem *item) { return labelsAndImage.contains(item); });
    QCOMPARE(others.size(), 1);
    QCOMPARE(grid->cellOf(others.first()), (Cell{2, 0, 1, 1, {}}));
}

void TestAlarmEditorListItem::otherStylesStayEmpty_data()
{
    QTest::addColumn<int>("itemStyle");
    QTest::newRow("a single title") << 0;
    QTest::newRow("a title with a subtitle") << 1;
}

void TestAlarmEditorListItem::otherStylesStayEmpty()
{
    QFETCH(int, itemStyle);
    const auto *item = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(itemStyle)));
    QVERIFY(item->layout());
    QCOMPARE(item->layout()->count(), 0);
    QVERIFY(!item->titleLabel()->isVisible());
    QVERIFY(!item->subtitleLabel()->isVisible());
    QVERIFY(!item->imageWidget()->isVisible());
}

void TestAlarmEditorListItem::anEmptySubtitleKeepsTheHeight()
{
    auto *item = new AlarmEditorListItem(AlarmEditorListItem::IconWithTitleAndSubtitle);
    place(item);
    const qreal empty = item->effectiveSizeHint(Qt::PreferredSize).height();
    item->setSubtitle("Value");
    QCOMPARE(item->effectiveSizeHint(Qt::PreferredSize).height(), empty);
}

void TestAlarmEditorListItem::theArrowIsInTheMiddleOfTheHeight()
{
    for (const int itemStyle : {2, 3}) {
        auto *item = new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(itemStyle));
        item->setSubtitle("Value");
        place(item);
        QCOMPARE(qRound(area(item->imageWidget()).center().y()), qRound(area(item).center().y()));
    }
}

void TestAlarmEditorListItem::theArrowIsOnTheOtherSideFromRightToLeft()
{
    auto *item = new AlarmEditorListItem(AlarmEditorListItem::IconWithTitle);
    item->setLayoutDirection(Qt::RightToLeft);
    place(item);
    QVERIFY(area(item->imageWidget()).right() <= area(item->titleLabel()).left());
}

void TestAlarmEditorListItem::theImageCanBeReplaced_data()
{
    QTest::addColumn<bool>("isLaidOut");
    QTest::newRow("before it is laid out") << false;
    QTest::newRow("while it shows") << true;
}

void TestAlarmEditorListItem::theImageCanBeReplaced()
{
    QFETCH(bool, isLaidOut);
    auto *item = new AlarmEditorListItem(AlarmEditorListItem::IconWithTitle);
    if (isLaidOut)
        place(item);
    const QPointer<ImageWidget> before = item->imageWidget();
    auto *image = new ImageWidget;
    item->setImageWidget(image);
    item->setImageWidget(image);
    item->setImageWidget(nullptr);
    QVERIFY(!before);
    QCOMPARE(item->imageWidget(), image);
    if (!isLaidOut)
        place(item);
    QCoreApplication::sendPostedEvents();
    QVERIFY(image->isVisible());
    QVERIFY(area(image).left() > 200);
    QCOMPARE(Support::countIn<ImageWidget>(item), 2);
}

void TestAlarmEditorListItem::aTapIsAClick()
{
    auto *item = place(new AlarmEditorListItem(AlarmEditorListItem::IconWithTitle));
    QSignalSpy clicked(item, &AlarmEditorListItem::clicked);
    const QPoint place = m_window->mapFromScene(area(item).center());
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(clicked.size(), 1);
}

void TestAlarmEditorListItem::theThemeReachesEveryPart_data()
{
    QTest::addColumn<int>("itemStyle");
    QTest::addColumn<QString>("name");
    QTest::newRow("title") << 2 << "CommonSingleTitle#MoreOptionsTitle";
    QTest::newRow("arrow") << 2 << "CommonDrillDownIcon#MoreOptionsIcon";
    QTest::newRow("title above") << 3 << "CommonSubTitleTop#AlarmOptionTitleLabel";
    QTest::newRow("value below") << 3 << "CommonTitleBottom#AlarmOptionSubTitle";
    QTest::newRow("choice arrow") << 3 << "CommonComboBoxIcon#AlarmOptionsIcon";
}

void TestAlarmEditorListItem::theThemeReachesEveryPart()
{
    QFETCH(int, itemStyle);
    QFETCH(QString, name);
    QTemporaryDir folder;
    QFile file(folder.filePath("theme.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("{ \"styles\": { \"%1\": { \"color\": \"#123456\" } } }").arg(name).toUtf8());
    file.close();
    QString error;
    QVERIFY2(Touch::Theme::instance().load(file.fileName(), &error), qPrintable(error));
    auto *item = place(new AlarmEditorListItem(AlarmEditorListItem::ItemStyle(itemStyle)));
    auto *part = Support::itemIn<Touch::Widget>(item, name.section('#', 1));
    QVERIFY(part);
    QCOMPARE(part->style().color, QColor("#123456"));
}

QTEST_MAIN(TestAlarmEditorListItem)
#include "tst_alarmeditorlistitem.moc"
