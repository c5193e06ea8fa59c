// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/switch.h"
#include "tests/support/look/mirror.h"
#include "tools/gallery/gallery.h"

#include <QTest>

using namespace Touch;

namespace {

constexpr int Width = 480;

struct Shown
{
    QList<Support::Placed> places;
    QImage picture;
};

/** What is on the screen after something was brought up, in one direction. */
Shown shown(Qt::LayoutDirection direction, const std::function<void(ApplicationWindow &, Gallery::RowsPage &)> &bringUp)
{
    QGuiApplication::setLayoutDirection(direction);
    ApplicationWindow window;
    Gallery::RowsPage page;
    page.appear(&window);
    window.show();
    bringUp(window, page);
    QCoreApplication::processEvents();
    return {Support::placesIn(window.topSceneWindow(), {"Touch::TextEdit"}), window.grab().toImage()};
}

/** A picture of one widget on an empty page. */
QImage pictureOf(Qt::LayoutDirection direction, const std::function<Widget *()> &make, const QSizeF &size)
{
    return shown(direction,
                 [&](ApplicationWindow &window, Gallery::RowsPage &) {
                     auto *page = new ApplicationPage;
                     page->appear(&window, SceneWindow::DestroyWhenDone);
                     Widget *widget = make();
                     widget->setParentItem(page->centralWidget());
                     widget->setGeometry(QRectF((Width - size.width()) / 2, 100, size.width(), size.height()));
                 })
        .picture.copy(int(Width - size.width()) / 2, 100, int(size.width()), int(size.height()));
}

/** The middle of what is drawn, as a part of the width. */
qreal middleOfInk(const QImage &picture)
{
    const QRgb ground = picture.pixel(0, 0);
    qint64 sum = 0;
    qint64 count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != ground) {
                sum += x;
                ++count;
            }
        }
    }
    return count ? qreal(sum) / qreal(count) / picture.width() : -1;
}

/** How many of the pixels differ by more than the edge of a curve does. */
qreal partThatDiffers(const QImage &a, const QImage &b)
{
    constexpr int softness = 64;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > softness ? 1 : 0;
    }
    return qreal(count) / (a.width() * a.height());
}

} // namespace

/** Every control from right to left lies and looks as in a mirror; texts are read as ever. */
class TestMirroring : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void everythingLiesOnTheOtherSide_data();
    void everythingLiesOnTheOtherSide();
    void textsBeginOnTheOtherSide();
    void theKnobSlidesTheOtherWay();
    void arrowsPointTheOtherWay_data();
    void arrowsPointTheOtherWay();
};

void TestMirroring::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestMirroring::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestMirroring::everythingLiesOnTheOtherSide_data()
{
    using BringUp = std::function<void(ApplicationWindow &, Gallery::RowsPage &)>;
    QTest::addColumn<BringUp>("bringUp");
    const auto row = [](const char *name, const BringUp &bringUp) { QTest::newRow(name) << bringUp; };
    row("rows", [](ApplicationWindow &, Gallery::RowsPage &) {});
    row("popup", [](ApplicationWindow &, Gallery::RowsPage &page) { page.choice->showPopup(); });
    row("menu", [](ApplicationWindow &, Gallery::RowsPage &page) { ObjectMenu::open(page.item); });
    row("controls", [](ApplicationWindow &window, Gallery::RowsPage &) {
        (new Gallery::Page)->appear(&window, SceneWindow::DestroyWhenDone);
    });
    row("question", [](ApplicationWindow &window, Gallery::RowsPage &) {
        (new Gallery::Question)->appear(&window, SceneWindow::DestroyWhenDone);
    });
    row("sheet", [](ApplicationWindow &window, Gallery::RowsPage &) {
        (new Gallery::Editor)->appear(&window, SceneWindow::DestroyWhenDone);
    });
}

void TestMirroring::everythingLiesOnTheOtherSide()
{
    QFETCH(const std::function<void(ApplicationWindow &, Gallery::RowsPage &)>, bringUp);
    const QList<Support::Placed> plain = shown(Qt::LeftToRight, bringUp).places;
    const QList<Support::Placed> mirrored = shown(Qt::RightToLeft, bringUp).places;
    QVERIFY(plain.size() > 3);
    QCOMPARE(Support::notMirrored(plain, mirrored, Width).join(QLatin1Char('\n')), QString());
}

void TestMirroring::textsBeginOnTheOtherSide()
{
    const auto make = [] {
        auto *label = new Label(QStringLiteral("Alarms"));
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        return label;
    };
    const qreal plain = middleOfInk(pictureOf(Qt::LeftToRight, make, {400, 60}));
    const qreal mirrored = middleOfInk(pictureOf(Qt::RightToLeft, make, {400, 60}));
    QVERIFY2(plain > 0 && plain < 0.4, qPrintable(QString::number(plain)));
    QVERIFY2(mirrored > 0.6, qPrintable(QString::number(mirrored)));
}

void TestMirroring::theKnobSlidesTheOtherWay()
{
    const auto make = [] {
        auto *toggle = new Switch;
        toggle->setChecked(true);
        return toggle;
    };
    const QImage plain = pictureOf(Qt::LeftToRight, make, {80, 60});
    const QImage mirrored = pictureOf(Qt::RightToLeft, make, {80, 60});
    QVERIFY(partThatDiffers(plain, mirrored) > 0.05);
    QVERIFY(partThatDiffers(plain, mirrored.mirrored(true, false)) < 0.01);
}

void TestMirroring::arrowsPointTheOtherWay_data()
{
    using Make = std::function<Widget *()>;
    QTest::addColumn<Make>("make");
    QTest::newRow("to what follows") << Make(
        [] { return new ImageWidget(QStringLiteral("icon-m-common-drilldown-arrow")); });
    QTest::newRow("back") << Make([] {
        auto *button = new Button;
        button->setStyleName(QStringLiteral("NavigationBarButton"));
        button->setIconID(QStringLiteral("icon-m-common-back"));
        return button;
    });
}

void TestMirroring::arrowsPointTheOtherWay()
{
    QFETCH(const std::function<Widget *()>, make);
    const QImage plain = pictureOf(Qt::LeftToRight, make, {48, 48});
    const QImage mirrored = pictureOf(Qt::RightToLeft, make, {48, 48});
    QVERIFY(middleOfInk(plain) > 0);
    QVERIFY(partThatDiffers(plain, mirrored) > 0.01);
    QVERIFY(partThatDiffers(plain, mirrored.mirrored(true, false)) < 0.02);
}

QTEST_MAIN(TestMirroring)
#include "tst_mirroring.moc"
