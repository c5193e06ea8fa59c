// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/ringscreen.h"

#include <QAccessible>
#include <QApplication>
#include <QSet>
#include <QTest>

using namespace RingScreen;

class TestClockAlarm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void saysWhenItIsSeen();
    void theButtonsAnswer();
    void snoozeKeys_data();
    void snoozeKeys();
    void aHeldKeySnoozesOnce();
    void closingTheWindowSnoozes();
    void withoutASnoozeOnlyStopEndsIt();
    void alarmsAreAnsweredInTheirOrder();
    void anAlarmThatWaitsCanBeAnsweredFirst();
    void theKeyThatSnoozedOneIsNotForTheNext();
    void aScreenThatHasJustComeUpTakesNoAnswer();
    void theSnoozeCanBeOfAnotherLength_data();
    void theSnoozeCanBeOfAnotherLength();
    void noLengthIsOfferedTwice();
    void allLengthsAreWrittenInOneSize();
    void isAnAlertToAssistiveTechnology();
    void theButtonsAreLargeAndFarApart();

private:
    Ringer::RingPlugin *m_plugin = nullptr;
    RecordingAnswers m_answers;
};

void TestClockAlarm::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QString reason;
    m_plugin = load(&reason);
    QVERIFY2(m_plugin, qPrintable(reason));
    m_plugin->setAnswers(&m_answers);
}

void TestClockAlarm::init()
{
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QVERIFY(waitForAnswers());
    m_answers.calls.clear();
}

void TestClockAlarm::cleanup()
{
    for (quint32 cookie = 1; cookie < 4; ++cookie)
        m_plugin->hide(cookie);
    QTRY_VERIFY(!window());
    m_answers.calls.clear();
}

void TestClockAlarm::saysWhenItIsSeen()
{
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    m_plugin->show(teaTime(2));
    QTRY_COMPARE(m_answers.calls, QStringList({"shown 1", "shown 2"}));
}

void TestClockAlarm::theButtonsAnswer()
{
    click("snooze");
    slideToStop();
    QCOMPARE(m_answers.calls, QStringList({"snooze 1 600", "dismiss 1"}));
}

void TestClockAlarm::snoozeKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("volume up") << Qt::Key_VolumeUp;
    QTest::newRow("volume down") << Qt::Key_VolumeDown;
    QTest::newRow("mute") << Qt::Key_VolumeMute;
    QTest::newRow("power") << Qt::Key_PowerOff;
    QTest::newRow("headset") << Qt::Key_MediaTogglePlayPause;
    QTest::newRow("return") << Qt::Key_Return;
}

void TestClockAlarm::snoozeKeys()
{
    QFETCH(Qt::Key, key);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, {});
        QApplication::sendEvent(window(), &event);
    }
    QCOMPARE(m_answers.calls, QStringList("snooze 1 600"));
}

void TestClockAlarm::aHeldKeySnoozesOnce()
{
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_VolumeDown, {}, {}, true);
    QApplication::sendEvent(window(), &repeated);
    QVERIFY(m_answers.calls.isEmpty());
}

void TestClockAlarm::closingTheWindowSnoozes()
{
    QVERIFY(!window()->close());
    QVERIFY(window());
    QCOMPARE(m_answers.calls, QStringList("snooze 1 600"));
}

void TestClockAlarm::withoutASnoozeOnlyStopEndsIt()
{
    m_plugin->show(teaTime(1, 0));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(!item("snooze")->isVisible());
    QTest::keyClick(window(), Qt::Key_Escape);
    QTest::keyClick(window(), Qt::Key_VolumeDown);
    QCOMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(!item("snooze5")->isVisible());
    slideToStop();
    QCOMPARE(m_answers.calls.last(), QString("dismiss 1"));
}

void TestClockAlarm::alarmsAreAnsweredInTheirOrder()
{
    m_plugin->show(teaTime(2, 300));
    m_plugin->show(teaTime(3));
    slideToStop();
    QCOMPARE(m_answers.calls.last(), QString("dismiss 1"));
    m_plugin->hide(1);
    QVERIFY(waitForAnswers());
    click("snooze");
    QCOMPARE(m_answers.calls.last(), QString("snooze 2 300"));
    m_plugin->hide(2);
    QVERIFY(waitForAnswers());
    slideToStop();
    QCOMPARE(m_answers.calls.last(), QString("dismiss 3"));
}

void TestClockAlarm::anAlarmThatWaitsCanBeAnsweredFirst()
{
    m_plugin->show(teaTime(2));
    m_plugin->show(teaTime(3));
    QTRY_VERIFY(m_answers.calls.contains("shown 3"));
    click("waiting0");
    QVERIFY(waitForAnswers());
    slideToStop();
    QCOMPARE(m_answers.calls.last(), QString("dismiss 2"));
    m_plugin->hide(2);
    QVERIFY(waitForAnswers());
    click("snooze");
    QCOMPARE(m_answers.calls.last(), QString("snooze 1 600"));
}

void TestClockAlarm::theKeyThatSnoozedOneIsNotForTheNext()
{
    m_plugin->show(teaTime(2));
    QTRY_VERIFY(m_answers.calls.contains("shown 2"));
    QTest::keyClick(window(), Qt::Key_VolumeDown);
    QCOMPARE(m_answers.calls.last(), QString("snooze 1 600"));
    m_plugin->hide(1);
    QTest::keyClick(window(), Qt::Key_VolumeDown);
    QTest::keyClick(window(), Qt::Key_Space);
    click("snooze");
    slideToStop();
    QCOMPARE(m_answers.calls.last(), QString("snooze 1 600"));
    QVERIFY(waitForAnswers());
    QTest::keyClick(window(), Qt::Key_Space);
    QCOMPARE(m_answers.calls.last(), QString("snooze 2 600"));
}

void TestClockAlarm::aScreenThatHasJustComeUpTakesNoAnswer()
{
    m_plugin->hide(1);
    QTRY_VERIFY(!window());
    m_plugin->show(teaTime(2));
    QVERIFY(window());
    click("snooze");
    QTest::keyClick(window(), Qt::Key_VolumeDown);
    QTest::keyClick(window(), Qt::Key_Return);
    QTRY_COMPARE(m_answers.calls, QStringList("shown 2"));
    QVERIFY(waitForAnswers());
    click("snooze");
    QCOMPARE(m_answers.calls.last(), QString("snooze 2 600"));
}

void TestClockAlarm::theSnoozeCanBeOfAnotherLength_data()
{
    QTest::addColumn<int>("minutes");
    for (const auto minutes : {5, 15, 20, 30})
        QTest::addRow("%d minutes", minutes) << minutes;
}

void TestClockAlarm::theSnoozeCanBeOfAnotherLength()
{
    QFETCH(int, minutes);
    click(QStringLiteral("snooze%1").arg(minutes));
    QCOMPARE(m_answers.calls, QStringList(QStringLiteral("snooze 1 %1").arg(60 * minutes)));
}

void TestClockAlarm::noLengthIsOfferedTwice()
{
    QVERIFY(!item("snooze10")->isVisible());
    m_plugin->show(teaTime(1, 300));
    QVERIFY(item("snooze10")->isVisible());
    QVERIFY(!item("snooze5")->isVisible());
    m_plugin->show(teaTime(1, 420));
    for (const auto *name : {"snooze5", "snooze10", "snooze15", "snooze20", "snooze30"})
        QVERIFY2(item(name)->isVisible(), name);
}

void TestClockAlarm::allLengthsAreWrittenInOneSize()
{
    const auto sizes = [] {
        QSet<int> found;
        for (const auto *name : {"snooze5", "snooze15", "snooze20", "snooze30"})
            found << item(name)->property("shownTextSize").toInt();
        return found;
    };
    const int usual = *sizes().cbegin();
    window()->resize(280, 640);
    QTRY_COMPARE(item("stop")->scene()->sceneRect().width(), 280);
    QTRY_VERIFY(!sizes().contains(usual));
    QCOMPARE(sizes().size(), 1);
    // Hidden and shown again they are where they were, of which nothing tells them.
    m_plugin->show(teaTime(1, 0));
    QVERIFY(!item("snooze15")->isVisible());
    m_plugin->show(teaTime(1));
    QVERIFY(item("snooze15")->isVisible());
    QCOMPARE(sizes().size(), 1);
    QVERIFY(!sizes().contains(usual));
}

void TestClockAlarm::isAnAlertToAssistiveTechnology()
{
    auto *page = item("snooze")->parentItem();
    while (page && (!page->isWidget() || !page->toGraphicsObject()->inherits("RingPage")))
        page = page->parentItem();
    QVERIFY(page);
    auto *alert = QAccessible::queryAccessibleInterface(page->toGraphicsObject());
    QVERIFY(alert);
    QCOMPARE(alert->role(), QAccessible::AlertMessage);
    QVERIFY2(alert->text(QAccessible::Name).endsWith(", Tea"), qPrintable(alert->text(QAccessible::Name)));

    auto *stop = QAccessible::queryAccessibleInterface(item("stop"));
    QCOMPARE(stop->role(), QAccessible::Button);
    stop->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(m_answers.calls, QStringList("dismiss 1"));
}

void TestClockAlarm::theButtonsAreLargeAndFarApart()
{
    for (const auto size : {QSize(480, 854), QSize(360, 640), QSize(854, 480)}) {
        window()->resize(size);
        QTRY_COMPARE(window()->viewport()->size(), size);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const auto snooze = item("snooze")->sceneBoundingRect();
        const auto stop = item("stop")->sceneBoundingRect();
        QVERIFY(snooze.height() >= 88 && stop.height() >= 56);
        QVERIFY(stop.top() - snooze.bottom() >= 40);
        QVERIFY(QRectF(QPointF(), size).contains(stop) && QRectF(QPointF(), size).contains(snooze));
    }
}

QTEST_MAIN(TestClockAlarm)
#include "tst_clockalarm.moc"
