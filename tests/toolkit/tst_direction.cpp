// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"
#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/textedit.h"
#include "tests/support/look/mirror.h"
#include "tools/gallery/gallery.h"

#include <QTest>

using namespace Touch;

namespace {

/** Everything that is shown in a window, with its picture. */
struct Shown
{
    QList<Support::Placed> places;
    QImage picture;
};

Shown shownIn(ApplicationWindow &window)
{
    QCoreApplication::processEvents();
    return {Support::placesIn(window.topSceneWindow(), {"Touch::TextEdit"}), window.grab().toImage()};
}

QStringList differences(const QList<Support::Placed> &wanted, const QList<Support::Placed> &found)
{
    QStringList wrong;
    if (wanted.size() != found.size())
        wrong.append(QStringLiteral("%1 widgets instead of %2").arg(found.size()).arg(wanted.size()));
    for (qsizetype i = 0; i < qMin(wanted.size(), found.size()); ++i) {
        if (wanted[i].what != found[i].what || wanted[i].rect != found[i].rect)
            wrong.append(QStringLiteral("%1 at %2").arg(found[i].what).arg(found[i].rect.left()));
    }
    return wrong;
}

} // namespace

/** What is open turns round with the direction that the user's language is written in. */
class TestDirection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void followsTheLanguage();
    void turnsWhatIsOpen_data();
    void turnsWhatIsOpen();
    void turnsWhatIsKeptUntilItAppears();
    void leavesWhatHasADirectionOfItsOwn();
    void turnsWhatAWidgetHasOpened();

private:
    using Make = SceneWindow *(*)();
};

void TestDirection::init()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    Locale::setDefault(Locale(QStringLiteral("en_GB")));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestDirection::followsTheLanguage()
{
    Locale::setDefault(Locale(QStringLiteral("ar_EG")));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    Locale::setDefault(Locale(QStringLiteral("fi_FI")));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestDirection::turnsWhatIsOpen_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("controls") << Make([]() -> SceneWindow * { return new Gallery::Page; });
    QTest::newRow("rows") << Make([]() -> SceneWindow * { return new Gallery::RowsPage; });
    QTest::newRow("choices") << Make([]() -> SceneWindow * { return new Gallery::ChoicesPage; });
    QTest::newRow("sheet") << Make([]() -> SceneWindow * { return new Gallery::Editor; });
    QTest::newRow("question") << Make([]() -> SceneWindow * { return new Gallery::Question; });
}

void TestDirection::turnsWhatIsOpen()
{
    QFETCH(Make, make);
    const auto open = [make](ApplicationWindow &window) {
        make()->appear(&window, SceneWindow::DestroyWhenDone);
        window.show();
        return shownIn(window);
    };
    ApplicationWindow turned;
    const Shown before = open(turned);
    Locale::setDefault(Locale(QStringLiteral("he_IL")));
    const Shown after = shownIn(turned);
    ApplicationWindow fresh;
    const Shown wanted = open(fresh);
    QCOMPARE(differences(wanted.places, after.places).join(QLatin1Char('\n')), QString());
    QCOMPARE(after.picture, wanted.picture);
    QVERIFY(after.picture != before.picture);
    Locale::setDefault(Locale(QStringLiteral("en_GB")));
    QCOMPARE(shownIn(turned).picture, before.picture);
}

void TestDirection::turnsWhatIsKeptUntilItAppears()
{
    Gallery::Editor kept;
    Locale::setDefault(Locale(QStringLiteral("fa_IR")));
    ApplicationWindow window;
    window.show();
    kept.appear(&window);
    QCOMPARE(kept.layoutDirection(), Qt::RightToLeft);
    kept.disappear();
    Locale::setDefault(Locale(QStringLiteral("en_GB")));
    kept.appear(&window);
    QCOMPARE(kept.field->layoutDirection(), Qt::LeftToRight);
}

void TestDirection::leavesWhatHasADirectionOfItsOwn()
{
    ApplicationWindow window;
    window.show();
    Gallery::RowsPage page;
    page.setLayoutDirection(Qt::LeftToRight);
    page.appear(&window);
    Locale::setDefault(Locale(QStringLiteral("ar_EG")));
    QCOMPARE(page.item->layoutDirection(), Qt::LeftToRight);
}

void TestDirection::turnsWhatAWidgetHasOpened()
{
    ApplicationWindow window;
    window.show();
    Gallery::RowsPage page;
    page.appear(&window);
    page.choice->showPopup();
    Locale::setDefault(Locale(QStringLiteral("ar_EG")));
    QCOMPARE(window.topSceneWindow()->layoutDirection(), Qt::RightToLeft);
    page.choice->dismissPopup();
    const ObjectMenu *menu = ObjectMenu::open(page.item);
    Locale::setDefault(Locale(QStringLiteral("en_GB")));
    QCOMPARE(menu->layoutDirection(), Qt::LeftToRight);
    // What is on a page with a direction of its own keeps to that.
    page.setLayoutDirection(Qt::RightToLeft);
    page.choice->showPopup();
    QCOMPARE(window.topSceneWindow()->layoutDirection(), Qt::RightToLeft);
}

int main(int argc, char **argv)
{
    Application application(argc, argv, QStringLiteral("nothing"));
    TestDirection test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_direction.moc"
