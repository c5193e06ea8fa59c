// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/action.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/pannableviewport.h"
#include "tests/support/look/items.h"
#include "tools/gallery/rows.h"
#include "touch.h"

#include <memory>
#include <QContextMenuEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

/** Gives every new cell an action for its menu. */
class MenuCreator : public Gallery::RowCreator
{
public:
    Widget *createCell(const QModelIndex &index, WidgetRecycler &recycler) override
    {
        Widget *cell = RowCreator::createCell(index, recycler);
        if (cell->actions().isEmpty()) {
            auto *action = new Action(QStringLiteral("Delete"), cell);
            action->setLocation(Action::ObjectMenuLocation);
            cell->addAction(action);
            QObject::connect(action, &QAction::triggered, cell, [this, cell] { deleted = cell; });
        }
        return cell;
    }

    Widget *deleted = nullptr;
};

} // namespace

class TestObjectMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void hasTheNumberOfItsLocation();
    void opensAtALongPressThatClicksNothing();
    void opensNothingAtATap();
    void opensNothingForAFingerThatMoves();
    void opensAtARightClick();
    void opensByTheMenuKey();
    void leavesBeforeItTriggers();
    void offersOnlyWhatIsForIt();
    void aStoryForANameLeavesRoomForWhatIsOffered();
    void closesWithoutAnAction();
    void closesWhenItsCellIsNeededForAnotherRow();
    void closesWhenItsOwnerGoes();

private:
    ObjectMenu *menu() const;
    Widget *cell() const { return m_list->cellAt(2); }

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    std::unique_ptr<Gallery::Rows> m_rows;
    PannableViewport *m_viewport = nullptr;
    List *m_list = nullptr;
    MenuCreator *m_creator = nullptr;
    int m_clicks = 0;
};

void TestObjectMenu::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestObjectMenu::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_rows = std::make_unique<Gallery::Rows>();
    m_rows->fill(50);
    m_viewport = new PannableViewport(m_page->centralWidget());
    m_viewport->setGeometry(QRectF(0, 0, 480, 800));
    m_list = new List;
    m_creator = new MenuCreator;
    m_clicks = 0;
    m_creator->clicks = &m_clicks;
    m_list->setCellCreator(m_creator);
    m_list->setItemModel(m_rows.get());
    m_viewport->setWidget(m_list);
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(cell());
}

void TestObjectMenu::cleanup()
{
    m_page.reset();
    m_window.reset();
}

ObjectMenu *TestObjectMenu::menu() const
{
    return qobject_cast<ObjectMenu *>(m_window->topSceneWindow());
}

void TestObjectMenu::hasTheNumberOfItsLocation()
{
    QCOMPARE(int(Action::ObjectMenuLocation), 8);
}

void TestObjectMenu::opensAtALongPressThatClicksNothing()
{
    Finger::press(*m_window, cell(), {200, 30});
    QVERIFY(!menu());
    QTRY_VERIFY(menu());
    QCOMPARE(menu()->owner(), cell());
    QCOMPARE(menu()->title(), QStringLiteral("Row 2"));
    Finger::release(*m_window, cell(), {200, 30});
    QCOMPARE(m_clicks, 0);
    QVERIFY2(menu(), "lifting the finger does not close it");
    QVERIFY(!static_cast<Button *>(cell())->isDown());
}

void TestObjectMenu::opensNothingAtATap()
{
    const QSignalSpy changed(m_window.get(), &Window::stackChanged);
    Finger::tap(*m_window, cell());
    QCOMPARE(m_clicks, 1);
    QVERIFY(!QTest::qWaitFor([&] { return changed.count() > 0; }, 700));
}

void TestObjectMenu::opensNothingForAFingerThatMoves()
{
    const QSignalSpy changed(m_window.get(), &Window::stackChanged);
    Finger::press(*m_window, cell(), {200, 30});
    Finger::moveTo(*m_window, cell(), {200, 10});
    QVERIFY(m_viewport->isPanning());
    QVERIFY(!QTest::qWaitFor([&] { return changed.count() > 0; }, 700));
    Finger::release(*m_window, cell(), {200, 10});
}

void TestObjectMenu::opensAtARightClick()
{
    const QPoint place = m_window->mapFromScene(cell()->mapToScene(QPointF(200, 30)));
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, m_window->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_window->viewport(), &event);
    QVERIFY(menu());
    QCOMPARE(menu()->owner(), cell());
}

void TestObjectMenu::opensByTheMenuKey()
{
    QTest::keyClick(m_window.get(), Qt::Key_Menu);
    QVERIFY2(!menu(), "the page has no actions");
    cell()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Menu);
    QVERIFY(menu());
    QCOMPARE(menu()->owner(), cell());
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Return);
    QCOMPARE(m_creator->deleted, cell());
    QVERIFY(cell()->hasFocus());
}

void TestObjectMenu::leavesBeforeItTriggers()
{
    const QPointer<ObjectMenu> opened = ObjectMenu::open(cell());
    bool wasOpen = true;
    connect(cell()->actions().constFirst(), &QAction::triggered, this, [&] { wasOpen = menu() != nullptr; });
    auto *row = Support::itemIn<Button>(opened->centralWidget());
    QCOMPARE(row->text(), QStringLiteral("Delete"));
    QVERIFY(row->size().height() >= 48);
    Finger::tap(*m_window, row);
    QCOMPARE(m_creator->deleted, cell());
    QVERIFY(!wasOpen);
    QTRY_VERIFY(!opened);
}

void TestObjectMenu::offersOnlyWhatIsForIt()
{
    auto *other = new Action(QStringLiteral("Elsewhere"), cell());
    auto *plain = new QAction(QStringLiteral("Plain"), cell());
    auto *hidden = new Action(QStringLiteral("Hidden"), cell());
    hidden->setLocation(Action::ObjectMenuLocation);
    hidden->setVisible(false);
    auto *second = new Action(QStringLiteral("Copy"), cell());
    second->setLocation(Action::ObjectMenuLocation);
    cell()->addActions({other, plain, hidden, second});
    const QList<QAction *> offered = ObjectMenu::actionsOf(cell());
    QCOMPARE(offered, (QList<QAction *>{cell()->actions().constFirst(), second}));
    const ObjectMenu *opened = ObjectMenu::open(cell());
    QCOMPARE(Support::countIn<Button>(opened->centralWidget()), 2);
}

void TestObjectMenu::aStoryForANameLeavesRoomForWhatIsOffered()
{
    Label owner(QStringLiteral("Long words of a name ").repeated(60));
    auto *action = new Action(QStringLiteral("Delete"), &owner);
    action->setLocation(Action::ObjectMenuLocation);
    owner.addAction(action);
    m_window->scene()->addItem(&owner);
    ObjectMenu::open(&owner);
    QTRY_VERIFY(menu());
    QVERIFY(menu()->title().startsWith("Long words of a name Long"));
    QVERIFY(menu()->title().endsWith(QChar(u'\u2026')));
    const auto *entry = Support::itemIn<Button>(menu()->centralWidget());
    QVERIFY(entry);
    QTRY_VERIFY(m_window->sceneRect().contains(entry->sceneBoundingRect()));
    m_window->scene()->removeItem(&owner);
}

void TestObjectMenu::closesWithoutAnAction()
{
    ObjectMenu::open(cell());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!menu());
    QVERIFY(!m_creator->deleted);
    QVERIFY(m_window->isVisible());
}

void TestObjectMenu::closesWhenItsCellIsNeededForAnotherRow()
{
    ObjectMenu::open(cell());
    m_rows->change(2, QStringLiteral("Same row, other text"));
    QTRY_COMPARE(static_cast<Button *>(cell())->text(), QStringLiteral("Same row, other text"));
    QVERIFY(menu());
    m_rows->fill(50);
    QVERIFY(!menu());
}

void TestObjectMenu::closesWhenItsOwnerGoes()
{
    auto *owner = new Widget(m_page->centralWidget());
    ObjectMenu::open(owner);
    QVERIFY(menu());
    delete owner;
    QVERIFY(!menu());
}

QTEST_MAIN(TestObjectMenu)
#include "tst_objectmenu.moc"
