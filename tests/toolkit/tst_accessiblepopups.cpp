// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessibleevents_p.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/switch.h"
#include "tools/gallery/gallery.h"

#include <memory>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

struct Told
{
    QAccessible::Event type;
    QObject *object;
};

QList<Told> told;

void listen(QAccessibleEvent *event)
{
    QAccessibleInterface *interface = event->accessibleInterface();
    told.append({event->type(), interface ? interface->object() : nullptr});
}

qsizetype timesTold(QAccessible::Event type, const QObject *object)
{
    return std::count_if(told.cbegin(), told.cend(),
                         [&](const Told &event) { return event.type == type && event.object == object; });
}

QAccessibleInterface *find(QAccessibleInterface *from, QAccessible::Role role, const QString &name)
{
    if (from->role() == role && from->text(QAccessible::Name) == name)
        return from;
    for (int i = 0; i < from->childCount(); ++i) {
        if (QAccessibleInterface *found = find(from->child(i), role, name))
            return found;
    }
    return nullptr;
}

QAccessibleInterface *of(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString pressAction()
{
    return QAccessibleActionInterface::pressAction();
}

} // namespace

/** What assistive technology is told when things change, and what it may do with what comes up. */
class TestAccessiblePopups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aDialogIsModalAndItsButtonsAnswer();
    void aMessageBoxIsReadWithItsText();
    void aChoiceTellsWhatIsChosenAndOpens();
    void anItemOpensItsMenuAndTriggers();
    void aBannerIsAnnounced();
    void aSwitchTellsThatItIsOff();
    void namesAreToldWhenTheyChange();
    void comingAndGoingIsTold();
    void beingOffIsTold();
    void theFocusIsTold();

private:
    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<Gallery::RowsPage> m_page;
};

void TestAccessiblePopups::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    AccessibleEvents::setListener(listen);
}

void TestAccessiblePopups::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<Gallery::RowsPage>();
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    told.clear();
}

void TestAccessiblePopups::cleanup()
{
    m_page.reset();
    m_window.reset();
}

void TestAccessiblePopups::aDialogIsModalAndItsButtonsAnswer()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done | Dialog::Cancel);
    dialog.appear(m_window.get());
    QCOMPARE(of(&dialog)->role(), QAccessible::Dialog);
    QCOMPARE(of(&dialog)->text(QAccessible::Name), QStringLiteral("Repeat"));
    QVERIFY(of(&dialog)->state().modal);
    const QSignalSpy accepted(&dialog, &Dialog::accepted);
    QAccessibleInterface *done = of(dialog.standardButton(Dialog::Done));
    QCOMPARE(done->role(), QAccessible::Button);
    done->actionInterface()->doAction(pressAction());
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!dialog.isOnDisplay());
}

void TestAccessiblePopups::aMessageBoxIsReadWithItsText()
{
    Gallery::Question question;
    question.appear(m_window.get());
    QCOMPARE(of(&question)->role(), QAccessible::AlertMessage);
    QCOMPARE(of(&question)->text(QAccessible::Name), question.title());
    QVERIFY(of(&question)->state().modal);
    QVERIFY(find(of(&question), QAccessible::StaticText, question.text()));
    QVERIFY(find(of(&question), QAccessible::Button, QStringLiteral("Delete")));
}

void TestAccessiblePopups::aChoiceTellsWhatIsChosenAndOpens()
{
    ComboBox *choice = m_page->choice;
    QAccessibleInterface *found = of(choice);
    QCOMPARE(found->role(), QAccessible::ComboBox);
    QCOMPARE(found->text(QAccessible::Value), choice->currentText());
    QVERIFY(found->state().hasPopup && found->state().expandable);
    QVERIFY(found->state().collapsed && !found->state().expanded);
    found->actionInterface()->doAction(pressAction());
    QVERIFY(choice->isPopupOpen());
    QVERIFY(found->state().expanded && !found->state().collapsed);
    QCOMPARE(timesTold(QAccessible::StateChanged, choice), 1);
    QAccessibleInterface *popup = of(m_window->topSceneWindow());
    QVERIFY(popup->state().modal);
    const int other = choice->currentIndex() == 0 ? 1 : 0;
    QVERIFY(find(popup, QAccessible::RadioButton, choice->currentText())->state().checked);
    QAccessibleInterface *row = find(popup, QAccessible::RadioButton, choice->itemText(other));
    QVERIFY(row && !row->state().checked);
    row->actionInterface()->doAction(row->actionInterface()->actionNames().constFirst());
    QCOMPARE(choice->currentIndex(), other);
    QTRY_VERIFY(found->state().collapsed);
    QTRY_COMPARE(timesTold(QAccessible::StateChanged, choice), 2);
    QCOMPARE(found->text(QAccessible::Value), choice->itemText(other));
    QVERIFY(timesTold(QAccessible::NameChanged, choice) > 0);
}

void TestAccessiblePopups::anItemOpensItsMenuAndTriggers()
{
    QAction *action = ObjectMenu::actionsOf(m_page->item).constFirst();
    const QSignalSpy triggered(action, &QAction::triggered);
    QVERIFY(of(m_page->item)->state().hasPopup);
    of(m_page->item)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    auto *menu = qobject_cast<ObjectMenu *>(m_window->topSceneWindow());
    QVERIFY(menu);
    QCOMPARE(menu->owner(), m_page->item);
    QCOMPARE(of(menu)->role(), QAccessible::PopupMenu);
    QVERIFY(of(menu)->state().modal);
    QAccessibleInterface *row = find(of(menu), QAccessible::MenuItem, action->text());
    QVERIFY(row);
    row->actionInterface()->doAction(pressAction());
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(m_window->topSceneWindow(), m_page.get());
}

void TestAccessiblePopups::aBannerIsAnnounced()
{
    Banner banner;
    banner.setTitle(QStringLiteral("Alarm in 8 hours"));
    QCOMPARE(timesTold(QAccessible::Alert, &banner), 0);
    banner.appear(m_window.get());
    QCOMPARE(timesTold(QAccessible::Alert, &banner), 1);
    QCOMPARE(of(&banner)->text(QAccessible::Name), QStringLiteral("Alarm in 8 hours"));
    QVERIFY(!of(&banner)->state().modal);
    banner.setTitle(QStringLiteral("Alarm in 7 hours"));
    QCOMPARE(timesTold(QAccessible::Alert, &banner), 2);
}

void TestAccessiblePopups::aSwitchTellsThatItIsOff()
{
    Switch toggle(m_page->centralWidget());
    toggle.setChecked(true);
    QCOMPARE(timesTold(QAccessible::StateChanged, &toggle), 1);
    QVERIFY(of(&toggle)->state().checked);
    toggle.click();
    QCOMPARE(timesTold(QAccessible::StateChanged, &toggle), 2);
    toggle.setChecked(false);
    QCOMPARE(timesTold(QAccessible::StateChanged, &toggle), 2);
}

void TestAccessiblePopups::namesAreToldWhenTheyChange()
{
    Label label(QStringLiteral("07"), m_page->centralWidget());
    Button button(QStringLiteral("Save"), m_page->centralWidget());
    label.setText(QStringLiteral("08"));
    button.setText(QStringLiteral("Keep"));
    m_page->item->setTitle(QStringLiteral("Tone"));
    m_page->item->setAccessibleName(QStringLiteral("Alarm tone"));
    QCOMPARE(timesTold(QAccessible::NameChanged, &label), 1);
    QCOMPARE(timesTold(QAccessible::NameChanged, &button), 1);
    QCOMPARE(timesTold(QAccessible::NameChanged, m_page->item), 2);
    label.setText(QStringLiteral("08"));
    QCOMPARE(timesTold(QAccessible::NameChanged, &label), 1);
}

void TestAccessiblePopups::comingAndGoingIsTold()
{
    Button button(QStringLiteral("Delete"), m_page->centralWidget());
    button.hide();
    QCOMPARE(timesTold(QAccessible::ObjectHide, &button), 1);
    QVERIFY(of(&button)->state().invisible);
    QVERIFY(!find(of(m_page.get()), QAccessible::Button, QStringLiteral("Delete")));
    button.show();
    QCOMPARE(timesTold(QAccessible::ObjectShow, &button), 1);
    QVERIFY(find(of(m_page.get()), QAccessible::Button, QStringLiteral("Delete")));
}

void TestAccessiblePopups::beingOffIsTold()
{
    Button button(QStringLiteral("Save"), m_page->centralWidget());
    button.setEnabled(false);
    QCOMPARE(timesTold(QAccessible::StateChanged, &button), 1);
    QVERIFY(of(&button)->state().disabled);
    QVERIFY(!of(&button)->actionInterface()->actionNames().contains(pressAction()));
}

void TestAccessiblePopups::theFocusIsTold()
{
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QObject *first = of(m_window.get())->focusChild()->object();
    QCOMPARE(timesTold(QAccessible::Focus, first), 1);
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    dialog.appear(m_window.get());
    QCOMPARE(timesTold(QAccessible::Focus, &dialog), 1);
    dialog.dismiss();
    QCOMPARE(timesTold(QAccessible::Focus, first), 2);
}

QTEST_MAIN(TestAccessiblePopups)
#include "tst_accessiblepopups.moc"
