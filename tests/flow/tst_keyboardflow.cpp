// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <QTest>

/** An alarm from its making to its end, without a finger: by keyboard alone. */
class TestKeyboardFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theButtonIsReachedAndOpensTheEditor();
    void theTitleIsTypedAndTheTimeSet();
    void savingLeadsBackToTheButton();
    void theSwitchOfTheRowIsReachedAndTurned();
    void theRowOpensWhatItHolds();
    void deletingLeavesAPageToGoOnWith();
    void cleanupTestCase();

private:
    QGraphicsObject *focused() const;
    /** Presses Tab until something has the focus, or nothing new gets it. */
    bool tabTo(const QGraphicsItem *item, Qt::KeyboardModifiers modifiers = {});
    bool tabTo(const QString &objectName, Qt::KeyboardModifiers modifiers = {});
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window.get(), Qt::Key(key), modifiers);
    }
    SettingAlarmPage *editor() const { return SettingAlarmPage::instance(); }
    TimePicker *picker() const { return Support::itemIn<TimePicker>(editor()); }
    AlarmListItem *row() const
    {
        return qobject_cast<AlarmListItem *>(Support::itemIn<Touch::List>(m_page.get())->cellAt(0));
    }

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_page;
};

void TestKeyboardFlow::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_GB.UTF-8");
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_page = std::make_unique<MashupPage>();
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestKeyboardFlow::cleanupTestCase()
{
    QVERIFY(Support::removeAllAlarms());
    m_page.reset();
    m_window.reset();
}

QGraphicsObject *TestKeyboardFlow::focused() const
{
    QGraphicsItem *item = m_window->scene()->focusItem();
    return item ? item->toGraphicsObject() : nullptr;
}

bool TestKeyboardFlow::tabTo(const QGraphicsItem *item, Qt::KeyboardModifiers modifiers)
{
    for (int presses = 0; item && presses < 12; ++presses) {
        if (focused() == item || (focused() && item->isAncestorOf(focused())))
            return true;
        press(Qt::Key_Tab, modifiers);
    }
    return false;
}

bool TestKeyboardFlow::tabTo(const QString &objectName, Qt::KeyboardModifiers modifiers)
{
    return tabTo(Support::itemIn<Touch::Widget>(m_window->topSceneWindow(), objectName), modifiers);
}

void TestKeyboardFlow::theButtonIsReachedAndOpensTheEditor()
{
    QVERIFY(tabTo("newAlarmButton"));
    press(Qt::Key_Return);
    QVERIFY(editor()->isOnDisplay());
    QCOMPARE(m_window->topSceneWindow(), editor());
}

void TestKeyboardFlow::theTitleIsTypedAndTheTimeSet()
{
    QVERIFY(tabTo("AlarmNameInputField"));
    QTest::keyClicks(m_window.get(), "Green tea");
    QCOMPARE(Support::itemIn<Touch::TextEdit>(editor())->text(), "Green tea");
    // The key that ends typing does not lose the place.
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    QVERIFY(picker()->hasFocus());
    const QTime before(picker()->hours(), picker()->minutes());
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    press(Qt::Key_PageUp);
    press(Qt::Key_Down);
    QCOMPARE(QTime(picker()->hours(), picker()->minutes()), before.addSecs(3600 + 4 * 60));
}

void TestKeyboardFlow::savingLeadsBackToTheButton()
{
    const QTime chosen(picker()->hours(), picker()->minutes());
    QVERIFY(tabTo("positiveButton", Qt::ShiftModifier));
    press(Qt::Key_Space);
    QTRY_VERIFY(!editor()->isOnDisplay());
    QTRY_VERIFY(row());
    QCOMPARE(row()->title(), chosen);
    QCOMPARE(row()->subTitle(), "Green tea");
    QVERIFY(row()->enabled());
    QCOMPARE(focused()->objectName(), "newAlarmButton");
}

void TestKeyboardFlow::theSwitchOfTheRowIsReachedAndTurned()
{
    press(Qt::Key_Tab);
    QCOMPARE(focused(), row());
    press(Qt::Key_Tab);
    QCOMPARE(focused(), Support::itemIn<Touch::Switch>(row()));
    press(Qt::Key_Space);
    QTRY_VERIFY(!row()->enabled());
    press(Qt::Key_Space);
    QTRY_VERIFY(row()->enabled());
}

void TestKeyboardFlow::theRowOpensWhatItHolds()
{
    press(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(focused(), row());
    press(Qt::Key_Return);
    QVERIFY(editor()->isOnDisplay());
    QCOMPARE(Support::itemIn<Touch::TextEdit>(editor())->text(), "Green tea");
    press(Qt::Key_Escape);
    QVERIFY(!editor()->isOnDisplay());
    QTRY_COMPARE(focused(), row());
}

void TestKeyboardFlow::deletingLeavesAPageToGoOnWith()
{
    press(Qt::Key_Return);
    QVERIFY(tabTo("deleteButton"));
    press(Qt::Key_Return);
    QTRY_VERIFY(!editor()->isOnDisplay());
    QTRY_VERIFY(!row());
    QVERIFY(m_page->isAncestorOf(focused()));
    QVERIFY(tabTo("newAlarmButton"));
}

QTEST_MAIN(TestKeyboardFlow)
#include "tst_keyboardflow.moc"
