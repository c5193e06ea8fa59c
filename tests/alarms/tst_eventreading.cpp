// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "platform/context/contextpublisher.h"
#include "tests/alarms/fakedaemon.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QSignalSpy>
#include <QTest>

using Clock::QmAlarmEvent;

namespace {

constexpr quint32 Listed = 7; // in the map of triggers
constexpr quint32 Unlisted = 8;
constexpr quint32 FirstOfMany = 100;
constexpr quint64 ListedTrigger = 1298448000000000000;

QVariantMap sampleAttributes()
{
    return {{"APPLICATION", "clock"},  {"TITLE", QString::fromUtf8("Früh")},
            {"enabled", "1"},          {"sound", "/tone.aac"},
            {"snooze", "20"},          {"alarmtime", "07:05"},
            {"trigger", "1298444700"}, {"PLUGIN", "libclockalarm"},
            {"STATE", "WAITING"}};
}

} // namespace

class TestEventReading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsEveryAttribute();
    void decidesWhetherTheAlarmIsOn_data();
    void decidesWhetherTheAlarmIsOn();
    void keepsTheUnitOfTheNextTrigger();
    void readsRepeatDays_data();
    void readsRepeatDays();
    void keepsTheRepeatDaysThatNobodyNames();
    void readsMissingAttributesAsNothing();
    void readsNumbersInTheirWidth();
    void keepsTheDefaultsWhereTheCallFails();
    void logsTheAttributes();
    void isReadByTheConstructor();
    void isListedWhenItsAttributesCannotBeRead();
    void asksOnceForEachListedAlarm();
    void readsTheOthersWhereOneCannotBeRead();
    void logsOneListedAlarmAfterTheOther();

private:
    Support::PrivateBus m_bus;
    std::unique_ptr<ContextPublisher> m_triggers;
    std::unique_ptr<FakeDaemon> m_daemon;
};

void TestEventReading::initTestCase()
{
    QCOMPARE(QDateTime::fromSecsSinceEpoch(0).offsetFromUtc(), 19800);
    QVERIFY(m_bus.isRunning());
    m_daemon = std::make_unique<FakeDaemon>();
    QVERIFY(m_daemon->isOnTheBus());
    m_triggers
        = std::make_unique<ContextPublisher>("Alarm.Trigger", QVariantMap{{QString::number(Listed), ListedTrigger}});
    QSignalSpy spy(Clock::Utility::instance(), &Clock::Utility::valueChanged);
    Clock::Utility::instance()->subscribeToContextFramework();
    QVERIFY(spy.wait());
}

void TestEventReading::readsEveryAttribute()
{
    m_daemon->setAttributes(Listed, sampleAttributes());
    QmAlarmEvent alarm;
    alarm.fromAstelTimedEvent(Listed);
    QCOMPARE(alarm.cookie(), Listed);
    QCOMPARE(alarm.application(), "clock");
    QCOMPARE(alarm.title(), QString::fromUtf8("Früh"));
    QCOMPARE(alarm.tone(), "/tone.aac");
    QCOMPARE(alarm.alarmTime(), QTime(7, 5));
    QCOMPARE(alarm.triggerTime(), QDateTime::fromSecsSinceEpoch(1298444700));
    QCOMPARE(alarm.triggerTime().timeSpec(), Qt::LocalTime);
    QCOMPARE(alarm.triggerTime().time(), QTime(12, 50));
    QCOMPARE(alarm.snooze(), quint8(20));
    QVERIFY(alarm.isEnabled());
    QVERIFY(!alarm.isRecurring());
    QCOMPARE(alarm.nextTrigger(), ListedTrigger);
}

void TestEventReading::decidesWhetherTheAlarmIsOn_data()
{
    QTest::addColumn<quint32>("cookie");
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<QVariant>("enabledAttribute");
    QTest::addColumn<bool>("on");

    const QVariant none;
    QTest::newRow("listed, waiting, on") << Listed << QVariant("WAITING") << QVariant("1") << true;
    QTest::newRow("listed, waiting, off") << Listed << QVariant("WAITING") << QVariant("0") << false;
    QTest::newRow("listed, waiting, no word") << Listed << QVariant("WAITING") << none << true;
    QTest::newRow("listed, waiting, other word") << Listed << QVariant("WAITING") << QVariant("true") << false;
    QTest::newRow("listed, ringing, off") << Listed << QVariant("TRIGGERED") << QVariant("0") << true;
    QTest::newRow("listed, other case, off") << Listed << QVariant("Waiting") << QVariant("0") << true;
    QTest::newRow("listed, no state, off") << Listed << none << QVariant("0") << true;
    QTest::newRow("unlisted, waiting, on") << Unlisted << QVariant("WAITING") << QVariant("1") << true;
    QTest::newRow("unlisted, waiting, off") << Unlisted << QVariant("WAITING") << QVariant("0") << false;
    QTest::newRow("unlisted, finished, on") << Unlisted << QVariant("FINISHED") << QVariant("1") << false;
    QTest::newRow("unlisted, no state, on") << Unlisted << none << QVariant("1") << false;
}

void TestEventReading::decidesWhetherTheAlarmIsOn()
{
    QFETCH(const quint32, cookie);
    QFETCH(const QVariant, state);
    QFETCH(const QVariant, enabledAttribute);
    QFETCH(const bool, on);
    QVariantMap attributes = sampleAttributes();
    attributes.remove("STATE");
    attributes.remove("enabled");
    if (state.isValid())
        attributes.insert("STATE", state);
    if (enabledAttribute.isValid())
        attributes.insert("enabled", enabledAttribute);
    m_daemon->setAttributes(cookie, attributes);
    const QmAlarmEvent alarm(cookie);
    QCOMPARE(alarm.isEnabled(), on);
}

void TestEventReading::keepsTheUnitOfTheNextTrigger()
{
    m_daemon->setAttributes(Listed, sampleAttributes());
    QVariantMap far = sampleAttributes();
    far.insert("trigger", "18446744073709551615");
    m_daemon->setAttributes(Unlisted, far);
    QCOMPARE(QmAlarmEvent(Listed).nextTrigger(), ListedTrigger);
    QCOMPARE(QmAlarmEvent(Unlisted).nextTrigger(), Q_UINT64_C(18446744073709551615));
    // On by the daemon's word, and still in seconds.
    m_daemon->setAttributes(Unlisted, sampleAttributes());
    const QmAlarmEvent alarm(Unlisted);
    QVERIFY(alarm.isEnabled());
    QCOMPARE(alarm.nextTrigger(), Q_UINT64_C(1298444700));
}

void TestEventReading::readsRepeatDays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("days");

    QTest::newRow("weekdays") << "12345" << QList<int>{1, 2, 3, 4, 5};
    QTest::newRow("leading zero") << "06" << QList<int>{0, 6};
    QTest::newRow("any order, twice") << "6506" << QList<int>{6, 5, 0, 6};
    QTest::newRow("not a digit") << "1,x" << QList<int>{1, -1, -1};
    QTest::newRow("beyond the week") << "9" << QList<int>{9};
    QTest::newRow("empty") << "" << QList<int>();
}

void TestEventReading::readsRepeatDays()
{
    QFETCH(const QString, text);
    QFETCH(const QList<int>, days);
    QVariantMap attributes = sampleAttributes();
    attributes.insert("recurrence", text);
    m_daemon->setAttributes(Listed, attributes);
    QCOMPARE(QmAlarmEvent(Listed).repeatDays(), days);
}

void TestEventReading::keepsTheRepeatDaysThatNobodyNames()
{
    m_daemon->setAttributes(Listed, sampleAttributes());
    QmAlarmEvent alarm;
    alarm.setRepeatDays({5, 1});
    alarm.fromAstelTimedEvent(Listed);
    QCOMPARE(alarm.title(), QString::fromUtf8("Früh"));
    QCOMPARE(alarm.repeatDays(), QList<int>({5, 1}));
}

void TestEventReading::readsMissingAttributesAsNothing()
{
    m_daemon->setAttributes(Unlisted, {});
    const QmAlarmEvent alarm(Unlisted);
    QCOMPARE(alarm.cookie(), Unlisted);
    QVERIFY(alarm.title().isEmpty());
    QVERIFY(alarm.tone().isEmpty());
    QVERIFY(alarm.application().isEmpty());
    QVERIFY(!alarm.isEnabled());
    QVERIFY(!alarm.alarmTime().isValid());
    QCOMPARE(alarm.triggerTime(), QDateTime::fromSecsSinceEpoch(0));
    QCOMPARE(alarm.snooze(), quint8(0));
    QCOMPARE(alarm.nextTrigger(), Q_UINT64_C(0));
    QVERIFY(!alarm.isRecurring());
}

void TestEventReading::readsNumbersInTheirWidth()
{
    QVariantMap attributes = sampleAttributes();
    attributes.insert("snooze", "300");
    attributes.insert("trigger", "4294967295");
    m_daemon->setAttributes(Unlisted, attributes);
    const QmAlarmEvent alarm(Unlisted);
    QCOMPARE(alarm.snooze(), quint8(44));
    QCOMPARE(alarm.triggerTime(), QDateTime::fromSecsSinceEpoch(4294967295));
}

void TestEventReading::keepsTheDefaultsWhereTheCallFails()
{
    m_daemon->refuse("query_attributes", "the disk is gone");
    const Support::LogCapture log;
    const QmAlarmEvent alarm(Listed);
    m_daemon->refuse("query_attributes", {});
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList({"QmAlarmEvent::fromAstelTimedEvent entered", "Failed in getting attributes for cookie : 7",
                          "QmAlarmEvent::fromAstelTimedEvent exited"}));
    QCOMPARE(alarm.cookie(), Listed);
    QVERIFY(alarm.isEnabled());
    QCOMPARE(alarm.snooze(), quint8(10));
    QVERIFY(alarm.title().isNull());
    QVERIFY(alarm.alarmTime().isNull());
    QVERIFY(alarm.triggerTime().isNull());
    QCOMPARE(alarm.nextTrigger(), Q_UINT64_C(0));
}

void TestEventReading::logsTheAttributes()
{
    m_daemon->setAttributes(Listed, {{"STATE", "WAITING"}});
    const Support::LogCapture log;
    const QmAlarmEvent alarm(Listed);
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList({"QmAlarmEvent::fromAstelTimedEvent entered",
                          "Attributes : QMap((\"STATE\", QVariant(QString, \"WAITING\")))",
                          "QmAlarmEvent::fromAstelTimedEvent exited"}));
}

void TestEventReading::isReadByTheConstructor()
{
    m_daemon->setAttributes(Listed, sampleAttributes());
    const QmAlarmEvent alarm(Listed);
    QCOMPARE(alarm.cookie(), Listed);
    QCOMPARE(alarm.tone(), "/tone.aac");
}

void TestEventReading::isListedWhenItsAttributesCannotBeRead()
{
    m_daemon->setAttributes(Listed, sampleAttributes());
    m_daemon->setAttributes(Unlisted, sampleAttributes());
    m_daemon->refuse("query_attributes", "the disk is gone");
    QList<QmAlarmEvent> alarms;
    QVERIFY(!Clock::QmAlarm().queryAndSortAlarmCookies(alarms));
    m_daemon->refuse("query_attributes", {});
    QCOMPARE(alarms.size(), 2);
    QVERIFY(alarms.first().isEnabled());
    QVERIFY(alarms.first().title().isNull());
}

void TestEventReading::asksOnceForEachListedAlarm()
{
    constexpr int Count = 300; // more than a bus lets wait for an answer at once
    for (int number = 0; number < Count; ++number) {
        QVariantMap attributes = sampleAttributes();
        attributes.insert("TITLE", QString::number(FirstOfMany + number));
        m_daemon->setAttributes(FirstOfMany + number, attributes);
    }
    const qsizetype stored = m_daemon->stored();
    const qsizetype before = m_daemon->calls().size();
    QList<QmAlarmEvent> alarms;
    QVERIFY(!Clock::QmAlarm().queryAndSortAlarmCookies(alarms));
    const QStringList calls = m_daemon->calls().mid(before);
    QCOMPARE(calls.first(), "query");
    QCOMPARE(calls.count("query_attributes"), stored);
    QCOMPARE(calls.size(), 1 + stored);
    QCOMPARE(alarms.size(), stored);
    int named = 0;
    for (const QmAlarmEvent &alarm : std::as_const(alarms))
        named += alarm.title() == QString::number(alarm.cookie());
    QCOMPARE(named, Count);
    for (int number = 0; number < Count; ++number)
        m_daemon->forget(FirstOfMany + number);
}

void TestEventReading::readsTheOthersWhereOneCannotBeRead()
{
    for (const quint32 cookie : {Listed, Unlisted, FirstOfMany})
        m_daemon->setAttributes(cookie, sampleAttributes());
    m_daemon->refuseOne("query_attributes", 2);
    QList<QmAlarmEvent> alarms;
    QVERIFY(!Clock::QmAlarm().queryAndSortAlarmCookies(alarms));
    QCOMPARE(alarms.size(), 3);
    for (const QmAlarmEvent &alarm : std::as_const(alarms))
        QCOMPARE(alarm.title().isNull(), alarm.cookie() == Unlisted);
    m_daemon->forget(FirstOfMany);
}

void TestEventReading::logsOneListedAlarmAfterTheOther()
{
    m_daemon->setAttributes(Listed, {{"STATE", "WAITING"}});
    m_daemon->setAttributes(Unlisted, {{"trigger", "60"}});
    const Support::LogCapture log;
    QList<QmAlarmEvent> alarms;
    QVERIFY(!Clock::QmAlarm().queryAndSortAlarmCookies(alarms));
    const QString signature = "bool Clock::QmAlarm::queryAndSortAlarmCookies(QList<Clock::QmAlarmEvent>&)";
    QCOMPARE(
        log.lines(QtDebugMsg),
        QStringList({signature + " entered", "QmAlarm::query entered", "QmAlarm::query exited",
                     "QmAlarmEvent::fromAstelTimedEvent entered",
                     "Attributes : QMap((\"STATE\", QVariant(QString, \"WAITING\")))",
                     "QmAlarmEvent::fromAstelTimedEvent exited", QString("trigger time is : %1").arg(ListedTrigger),
                     "QmAlarmEvent::fromAstelTimedEvent entered",
                     "Attributes : QMap((\"trigger\", QVariant(QString, \"60\")))",
                     "QmAlarmEvent::fromAstelTimedEvent exited", "trigger time is : 60", signature + " exited"}));
}

QTEST_GUILESS_MAIN(TestEventReading)
#include "tst_eventreading.moc"
