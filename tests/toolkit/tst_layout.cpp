// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/window.h"

#include <QGraphicsScene>
#include <QTemporaryDir>
#include <QTest>

using namespace Touch;

namespace {

/** An item that wants what it is told to. */
class Stub : public QGraphicsWidget
{
public:
    explicit Stub(const QSizeF &preferred, QSizePolicy::Policy policy = QSizePolicy::Preferred)
    {
        setMinimumSize(0, 0);
        setPreferredSize(preferred);
        setSizePolicy(policy, policy);
    }
};

} // namespace

class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void placesARow_data();
    void placesARow();
    void alignsInItsCell_data();
    void alignsInItsCell();
    void placesAColumnWithAStretch();
    void mirrorsARow();
    void fillsAGridWithSpans();
    void aGridTellsTheCellOfAnItem();
    void addsMarginsAndSpacingToItsHints();
    void takesMarginsAndSpacingFromItsStyle();
    void keepsTheStylePaddingOfItsWidget();
    void keepsTheMarginsOfAnItemFree();
    void givesAWrappedLabelItsHeight();
    void hidesWhatTheActivePolicyDoesNotHold();
    void leavesAnItemHiddenThatWasHiddenByOthers();
    void givesNoRoomToAHiddenItem();
    void followsTheOrientationOfItsWindow();
    void staysPortraitInALockedWindow();
    void hidesTheItemsOfANestedLayout();
    void forgetsADeletedItem();
    void isSharedByPoliciesThatHoldTheSameItem();
};

void TestLayout::placesARow_data()
{
    QTest::addColumn<QSizePolicy::Policy>("left");
    QTest::addColumn<QSizePolicy::Policy>("right");
    QTest::addColumn<QList<qreal>>("edges"); // left, right of the one, left, right of the other
    using Edges = QList<qreal>;
    QTest::newRow("both grow") << QSizePolicy::Preferred << QSizePolicy::Preferred << Edges{0, 45, 55, 100};
    QTest::newRow("fixed stays") << QSizePolicy::Fixed << QSizePolicy::Preferred << Edges{0, 20, 30, 100};
    QTest::newRow("expanding takes all") << QSizePolicy::Preferred << QSizePolicy::Expanding << Edges{0, 20, 30, 100};
    QTest::newRow("maximum does not grow") << QSizePolicy::Maximum << QSizePolicy::Maximum << Edges{0, 20, 30, 50};
}

void TestLayout::placesARow()
{
    QFETCH(QSizePolicy::Policy, left);
    QFETCH(QSizePolicy::Policy, right);
    QGraphicsWidget widget;
    auto *row = new LinearLayoutPolicy(new Layout(&widget), Qt::Horizontal);
    row->setSpacing(10);
    auto *first = new Stub({20, 20}, left);
    auto *second = new Stub({20, 20}, right);
    row->addItem(first);
    row->addItem(second);
    widget.resize(100, 40);
    const QList<qreal> edges{first->geometry().left(), first->geometry().right(), second->geometry().left(),
                             second->geometry().right()};
    QTEST(edges, "edges");
}

void TestLayout::alignsInItsCell_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRectF>("place");
    const auto row = [](const char *name, Qt::Alignment alignment, const QRectF &place,
                        Qt::LayoutDirection direction = Qt::LeftToRight) {
        QTest::newRow(name) << alignment << direction << place;
    };
    row("not said", {}, {0, 40, 20, 20});
    row("left top", Qt::AlignLeft | Qt::AlignTop, {0, 0, 20, 20});
    row("right bottom", Qt::AlignRight | Qt::AlignBottom, {80, 80, 20, 20});
    row("centre", Qt::AlignCenter, {40, 40, 20, 20});
    row("left is where a mirrored line starts", Qt::AlignLeft | Qt::AlignTop, {80, 0, 20, 20}, Qt::RightToLeft);
}

void TestLayout::alignsInItsCell()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(Qt::LayoutDirection, direction);
    QGraphicsWidget widget;
    widget.setLayoutDirection(direction);
    auto *column = new LinearLayoutPolicy(new Layout(&widget), Qt::Vertical);
    auto *item = new Stub({20, 20}, QSizePolicy::Fixed);
    auto *room = new StylableWidget;
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *layout = new Layout(room);
    auto *inner = new GridLayoutPolicy(layout);
    inner->setRowStretchFactor(0, 1);
    inner->addItem(new Stub({0, 100}, QSizePolicy::Expanding), 0, 0);
    inner->addItem(item, 0, 0, 1, 1, alignment);
    column->addItem(room);
    widget.resize(100, 100);
    QTEST(item->geometry(), "place");
}

void TestLayout::placesAColumnWithAStretch()
{
    QGraphicsWidget widget;
    auto *column = new LinearLayoutPolicy(new Layout(&widget), Qt::Vertical);
    auto *top = new Stub({10, 20}, QSizePolicy::Fixed);
    auto *bottom = new Stub({10, 20}, QSizePolicy::Fixed);
    column->addItem(top);
    column->addStretch();
    column->addItem(bottom);
    widget.resize(50, 100);
    QCOMPARE(top->geometry(), QRectF(0, 0, 10, 20));
    QCOMPARE(bottom->geometry(), QRectF(0, 80, 10, 20));
}

void TestLayout::mirrorsARow()
{
    StylableWidget widget;
    widget.setLayoutDirection(Qt::RightToLeft);
    auto *row = new LinearLayoutPolicy(new Layout(&widget), Qt::Horizontal);
    row->setContentsMargins(10, 0, 0, 0);
    auto *first = new Stub({20, 20}, QSizePolicy::Fixed);
    auto *second = new Stub({30, 20}, QSizePolicy::Fixed);
    row->addItem(first);
    row->addItem(second);
    widget.resize(100, 20);
    QCOMPARE(first->geometry(), QRectF(70, 0, 20, 20));
    QCOMPARE(second->geometry(), QRectF(40, 0, 30, 20));
}

void TestLayout::fillsAGridWithSpans()
{
    QGraphicsWidget widget;
    auto *grid = new GridLayoutPolicy(new Layout(&widget));
    grid->setSpacing(4);
    auto *wide = new Stub({10, 10});
    auto *label = new Stub({10, 20}, QSizePolicy::Expanding);
    auto *button = new Stub({30, 20}, QSizePolicy::Fixed);
    wide->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    grid->addItem(wide, 0, 0, 1, 2);
    grid->addItem(label, 1, 0);
    grid->addItem(button, 1, 1);
    widget.resize(100, 64);
    QCOMPARE(wide->geometry(), QRectF(0, 0, 100, 10));
    QCOMPARE(label->geometry(), QRectF(0, 14, 66, 50));
    QCOMPARE(button->geometry(), QRectF(70, 29, 30, 20));
}

void TestLayout::aGridTellsTheCellOfAnItem()
{
    QGraphicsWidget widget;
    auto *grid = new GridLayoutPolicy(new Layout(&widget));
    auto *item = new Stub({10, 10});
    grid->addItem(item, 2, 1, 3, 4, Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(grid->cellOf(item), (GridLayoutPolicy::Cell{2, 1, 3, 4, Qt::AlignLeft | Qt::AlignVCenter}));
    grid->removeItem(item);
    QCOMPARE(grid->cellOf(item).row, -1);
}

void TestLayout::addsMarginsAndSpacingToItsHints()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *row = new LinearLayoutPolicy(layout, Qt::Horizontal);
    row->setContentsMargins(1, 2, 3, 4);
    row->setSpacing(5);
    row->addItem(new Stub({10, 10}));
    row->addItem(new Stub({20, 30}));
    QCOMPARE(layout->effectiveSizeHint(Qt::PreferredSize), QSizeF(39, 36));
    QCOMPARE(layout->effectiveSizeHint(Qt::MinimumSize), QSizeF(9, 6));
}

void TestLayout::takesMarginsAndSpacingFromItsStyle()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("theme.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"styles": {"Roomy": {"padding": [1, 2, 3, 4], "spacing": 5}}})");
    file.close();
    QString error;
    QVERIFY2(Theme::instance().load(file.fileName(), &error), qPrintable(error));
    QGraphicsWidget widget;
    LinearLayoutPolicy *row = new LinearLayoutPolicy(new Layout(&widget), Qt::Horizontal);
    row->setStyleName(QStringLiteral("Roomy"));
    QCOMPARE(row->contentsMargins(), QMarginsF(1, 2, 3, 4));
    QCOMPARE(row->spacing(), 5.0);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    QCOMPARE(row->contentsMargins(), QMarginsF());
    QCOMPARE(row->spacing(), 0.0);
}

void TestLayout::keepsTheStylePaddingOfItsWidget()
{
    StylableWidget panel;
    panel.setStyleName(QStringLiteral("CommonPanelNoFeedback"));
    const QMarginsF padding = panel.style().padding;
    QVERIFY(padding.left() > 0);
    auto *row = new LinearLayoutPolicy(new Layout(&panel), Qt::Horizontal);
    row->setContentsMargins(0, 0, 0, 0);
    auto *item = new Stub({50, 50});
    row->addItem(item);
    const QSizeF wanted = panel.effectiveSizeHint(Qt::PreferredSize);
    QCOMPARE(wanted, QSizeF(50, 50).grownBy(padding));
    panel.resize(wanted);
    QCOMPARE(item->geometry(), QRectF(padding.left(), padding.top(), 50, 50));
}

void TestLayout::keepsTheMarginsOfAnItemFree()
{
    QGraphicsWidget widget;
    auto *column = new LinearLayoutPolicy(new Layout(&widget), Qt::Vertical);
    auto *field = new StylableWidget;
    field->setStyleName(QStringLiteral("CommonItemDivider"));
    const QMarginsF margins = field->style().margins;
    QVERIFY(margins.left() > 0);
    column->addItem(field);
    widget.resize(200, 40);
    QCOMPARE(field->geometry(), QRectF(0, 0, 200, 40).marginsRemoved(margins));
}

void TestLayout::givesAWrappedLabelItsHeight()
{
    QGraphicsWidget widget;
    auto *column = new LinearLayoutPolicy(new Layout(&widget), Qt::Vertical);
    auto *label = new Label(QStringLiteral("one two three four five six seven eight nine ten eleven twelve"));
    label->setWordWrap(true);
    auto *below = new Stub({10, 10}, QSizePolicy::Fixed);
    column->addItem(label);
    column->addItem(below);
    column->addStretch();
    widget.resize(1000, 400);
    const qreal oneLine = label->size().height();
    widget.resize(150, 400);
    QVERIFY(label->size().height() >= 3 * oneLine);
    QCOMPARE(below->geometry().top(), label->geometry().bottom());
}

void TestLayout::hidesWhatTheActivePolicyDoesNotHold()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *first = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *second = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *both = new Stub({10, 10});
    auto *onlyFirst = new Stub({10, 10});
    auto *onlySecond = new Stub({10, 10});
    first->addItem(both);
    first->addItem(onlyFirst);
    second->addItem(both);
    second->addItem(onlySecond);
    QCOMPARE(layout->policy(), first);
    QVERIFY(both->isVisible() && onlyFirst->isVisible() && !onlySecond->isVisible());
    layout->setPolicy(second);
    QVERIFY(both->isVisible() && !onlyFirst->isVisible() && onlySecond->isVisible());
    layout->setPolicy(first);
    QVERIFY(both->isVisible() && onlyFirst->isVisible() && !onlySecond->isVisible());
}

void TestLayout::leavesAnItemHiddenThatWasHiddenByOthers()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *first = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *second = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *item = new Stub({10, 10});
    first->addItem(item);
    item->hide();
    layout->setPolicy(second);
    layout->setPolicy(first);
    QVERIFY(!item->isVisible());
}

void TestLayout::givesNoRoomToAHiddenItem()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *row = new LinearLayoutPolicy(layout, Qt::Horizontal);
    row->setSpacing(10);
    auto *hidden = new StylableWidget;
    hidden->setPreferredSize(30, 10);
    auto *shown = new Stub({20, 10}, QSizePolicy::Fixed);
    row->addItem(hidden);
    row->addItem(shown);
    QCOMPARE(layout->effectiveSizeHint(Qt::PreferredSize).width(), 60.0);
    hidden->hide();
    QCOMPARE(layout->effectiveSizeHint(Qt::PreferredSize).width(), 20.0);
    widget.resize(100, 10);
    QCOMPARE(shown->geometry().left(), 0.0);
}

void TestLayout::followsTheOrientationOfItsWindow()
{
    Window window;
    auto *widget = new StylableWidget;
    window.scene()->addItem(widget);
    auto *layout = new Layout(widget);
    auto *landscape = new LinearLayoutPolicy(layout, Qt::Horizontal);
    auto *portrait = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *face = new Stub({10, 10});
    auto *divider = new Stub({10, 1});
    landscape->addItem(face);
    portrait->addItem(face);
    portrait->addItem(divider);
    layout->setLandscapePolicy(landscape);
    layout->setPortraitPolicy(portrait);
    window.setOrientation(Qt::Vertical);
    QCOMPARE(layout->policy(), portrait);
    QVERIFY(divider->isVisible());
    window.setOrientation(Qt::Horizontal);
    QCOMPARE(layout->policy(), landscape);
    QTRY_VERIFY(!divider->isVisible());
    window.setOrientation(Qt::Vertical);
    QTRY_VERIFY(divider->isVisible());
}

void TestLayout::staysPortraitInALockedWindow()
{
    Window window;
    window.setOrientation(Qt::Vertical);
    window.setOrientationLocked(true);
    window.resize(900, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.orientation(), Qt::Vertical);
    window.setOrientationLocked(false);
    QCOMPARE(window.orientation(), Qt::Horizontal);
}

void TestLayout::hidesTheItemsOfANestedLayout()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *with = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *without = new LinearLayoutPolicy(layout, Qt::Vertical);
    auto *nested = new Layout;
    auto *row = new LinearLayoutPolicy(nested, Qt::Horizontal);
    auto *digit = new Stub({10, 10});
    with->addItem(nested);
    row->addItem(digit);
    QVERIFY(digit->isVisible());
    layout->setPolicy(without);
    QVERIFY(!digit->isVisible());
    layout->setPolicy(with);
    QVERIFY(digit->isVisible());
    widget.resize(100, 50);
    QCOMPARE(digit->geometry().width(), 100.0);
}

void TestLayout::forgetsADeletedItem()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *row = new LinearLayoutPolicy(layout, Qt::Horizontal);
    auto *item = new Stub({10, 10});
    row->addItem(item);
    QCOMPARE(layout->count(), 1);
    delete item;
    QCOMPARE(layout->count(), 0);
    QCOMPARE(row->count(), 0);
}

void TestLayout::isSharedByPoliciesThatHoldTheSameItem()
{
    QGraphicsWidget widget;
    auto *layout = new Layout(&widget);
    auto *item = new Stub({10, 10});
    (new LinearLayoutPolicy(layout, Qt::Horizontal))->addItem(item);
    (new GridLayoutPolicy(layout))->addItem(item, 0, 0);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0), item);
}

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
