// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/utility.h"

#include "platform/context/contextproperty.h"
#include "platform/context/contextpublisher.h"
#include "tests/alarms/stoppedclock.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using Clock::Utility;

namespace {

constexpr quint64 Nanoseconds = 1000000000;
const qint64 Now = 1298448000;

/** Two texts with their placeholders, as a catalogue would hold them. */
class Texts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *id, const char *, int count) const override
    {
        if (qstrcmp(id, "qtn_cloc_time_left_alarm") == 0)
            return "in %1";
        if (qstrcmp(id, "qtn_cloc_about_days") == 0)
            return count == 1 ? "%n day" : "%n days";
        return {};
    }
};

QString timeLeft(qint64 seconds)
{
    const StoppedClock clock(QDateTime::fromSecsSinceEpoch(Now));
    QString text;
    Utility::timeLeftForAlarmToTrigger(time_t(Now + seconds), text);
    return text;
}

} // namespace

class TestUtility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hasOneSignalAndOneSlotInThisOrder();
    void knowsNothingBeforeTheFirstUpdate();
    void subscribesAndKeepsTheSnapshot();
    void findsTriggersByCookie();
    void readsCookiesAsSignedNumbers();
    void setsTheSecondsAlsoWhereNothingIsFound();
    void comparesHourAndMinuteOfTheTrigger();
    void reReadsTheSnapshotWhenAsked();
    void followsSubscriptionsOfItsOwn();
    void tellsTheTimeLeft_data();
    void tellsTheTimeLeft();
    void tellsTheTimeLeftWhereSummerTimeBegins();
    void logsTheTimeLeftCall();

private:
    void publish(const QVariantMap &triggers);

    Support::PrivateBus m_bus;
    std::unique_ptr<ContextPublisher> m_publisher;
    Texts m_texts;
};

void TestUtility::initTestCase()
{
    QCOMPARE(QDateTime::fromSecsSinceEpoch(Now).offsetFromUtc(), 3600);
    QVERIFY(m_bus.isRunning());
    QVERIFY(QCoreApplication::installTranslator(&m_texts));
    QCOMPARE(Utility::instance(), Utility::instance());
    QVERIFY(!Utility::instance()->parent());
}

void TestUtility::publish(const QVariantMap &triggers)
{
    QSignalSpy spy(Utility::instance(), &Utility::valueChanged);
    m_publisher->publish(triggers);
    QVERIFY(spy.wait());
}

void TestUtility::hasOneSignalAndOneSlotInThisOrder()
{
    const QMetaObject &meta = Utility::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod first = meta.method(meta.methodOffset());
    const QMetaMethod second = meta.method(meta.methodOffset() + 1);
    QCOMPARE(first.methodType(), QMetaMethod::Signal);
    QCOMPARE(first.methodSignature(), "valueChanged()");
    QCOMPARE(second.methodType(), QMetaMethod::Slot);
    QCOMPARE(second.methodSignature(), "onValueChanged()");
}

void TestUtility::knowsNothingBeforeTheFirstUpdate()
{
    quint64 trigger = 5;
    QVERIFY(!Utility::instance()->isTriggerMapReceived());
    QVERIFY(!Utility::instance()->triggerFromContext(1, trigger));
    QCOMPARE(trigger, 5u);
    QVERIFY(!Utility::instance()->isTriggerTimeChanged(1, QTime(1, 0)));
    // There is nothing to read the snapshot from.
    Utility::instance()->onValueChanged();
    QVERIFY(!Utility::instance()->isTriggerMapReceived());
}

void TestUtility::subscribesAndKeepsTheSnapshot()
{
    m_publisher = std::make_unique<ContextPublisher>("Alarm.Trigger", QVariantMap());
    QVERIFY(m_publisher->isPublished());
    const Support::LogCapture log;
    QSignalSpy spy(Utility::instance(), &Utility::valueChanged);
    Utility::instance()->subscribeToContextFramework();
    QCOMPARE(log.lines(QtDebugMsg), QStringList{"void Clock::Utility::subscribeToContextFramework()"});
    const auto properties = Utility::instance()->findChildren<ContextProperty *>();
    QCOMPARE(properties.size(), 1);
    QCOMPARE(properties.first()->key(), "Alarm.Trigger");
    QVERIFY(!Utility::instance()->isTriggerMapReceived());
    // What is read before the first value comes counts as well.
    Utility::instance()->onValueChanged();
    QVERIFY(Utility::instance()->isTriggerMapReceived());
    QVERIFY(spy.wait());
    QCOMPARE(spy.size(), 2);
}

void TestUtility::findsTriggersByCookie()
{
    publish({{"7", 1298448000999999999ULL}, {"2147483647", 18446744073709551615ULL}});
    quint64 trigger = 5;
    QVERIFY(Utility::instance()->triggerFromContext(7, trigger));
    QCOMPARE(trigger, Q_UINT64_C(1298448000999999999));
    QVERIFY(Utility::instance()->triggerFromContext(2147483647, trigger));
    QCOMPARE(trigger, Q_UINT64_C(18446744073709551615));
    QVERIFY(!Utility::instance()->triggerFromContext(8, trigger));
    QCOMPARE(trigger, Q_UINT64_C(18446744073709551615));
    publish({{"8", 1ULL}});
    QVERIFY(!Utility::instance()->triggerFromContext(7, trigger));
    QVERIFY(Utility::instance()->triggerFromContext(8, trigger));
}

void TestUtility::readsCookiesAsSignedNumbers()
{
    publish({{"2147483648", 1ULL}, {"4294967295", 2ULL}, {"-2147483648", 3ULL}});
    quint64 trigger = 5;
    QVERIFY(!Utility::instance()->triggerFromContext(4294967295u, trigger));
    QCOMPARE(trigger, 5u);
    QVERIFY(Utility::instance()->triggerFromContext(2147483648u, trigger));
    QCOMPARE(trigger, 3u);
}

void TestUtility::setsTheSecondsAlsoWhereNothingIsFound()
{
    publish({{"7", 1298448000999999999ULL}});
    time_t seconds = 5;
    QVERIFY(Utility::instance()->triggerSecondsFromContext(7, seconds));
    QCOMPARE(seconds, time_t(1298448000));
    QVERIFY(!Utility::instance()->triggerSecondsFromContext(8, seconds));
    QCOMPARE(seconds, time_t(0));
}

void TestUtility::comparesHourAndMinuteOfTheTrigger()
{
    const QDateTime trigger(QDate(2026, 11, 18), QTime(7, 30, 59));
    publish({{"7", quint64(trigger.toSecsSinceEpoch()) * Nanoseconds}});
    const Utility *utility = Utility::instance();
    QVERIFY(!utility->isTriggerTimeChanged(7, QTime(7, 30)));
    QVERIFY(utility->isTriggerTimeChanged(7, QTime(8, 30)));
    QVERIFY(utility->isTriggerTimeChanged(7, QTime(7, 31)));
    QVERIFY(!utility->isTriggerTimeChanged(8, QTime(8, 30)));
}

void TestUtility::reReadsTheSnapshotWhenAsked()
{
    QSignalSpy spy(Utility::instance(), &Utility::valueChanged);
    Utility::instance()->onValueChanged();
    QCOMPARE(spy.size(), 1);
    time_t seconds = 0;
    QVERIFY(Utility::instance()->triggerSecondsFromContext(7, seconds));
}

void TestUtility::followsSubscriptionsOfItsOwn()
{
    QSignalSpy spy(Utility::instance(), &Utility::valueChanged);
    Utility::instance()->subscribeToContextFramework();
    QCOMPARE(Utility::instance()->findChildren<ContextProperty *>().size(), 2);
    QTRY_COMPARE(spy.size(), 1);
    m_publisher->publish(QVariantMap{{"9", 1ULL}});
    QTRY_COMPARE(spy.size(), 3);
    quint64 trigger = 0;
    QVERIFY(Utility::instance()->triggerFromContext(9, trigger));
}

void TestUtility::tellsTheTimeLeft_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");

    const qint64 turn = Q_INT64_C(1) << 32;
    QTest::newRow("now") << 0LL << "in 00:00";
    QTest::newRow("59 s") << 59LL << "in 00:00";
    QTest::newRow("a minute") << 60LL << "in 00:01";
    QTest::newRow("a second less than an hour") << 3599LL << "in 00:59";
    QTest::newRow("a second less than a day") << 86399LL << "in 23:59";
    QTest::newRow("a day") << 86400LL << "in 1 day";
    QTest::newRow("a second less than 1.5 days") << 129599LL << "in 1 day";
    QTest::newRow("1.5 days") << 129600LL << "in 2 days";
    QTest::newRow("a week") << 604800LL << "in 7 days";
    QTest::newRow("10 s ago") << -10LL << "in 0 days";
    QTest::newRow("half a day ago") << -43200LL << "in 0 days";
    QTest::newRow("a second more ago") << -43201LL << "in 1158050441 days";
    QTest::newRow("1.5 days ago") << -129600LL << "in 1158050440 days";
    QTest::newRow("the largest difference") << 2147483647LL << "in 24855 days";
    QTest::newRow("beyond it") << 2147483648LL << "in 1158025586 days";
    QTest::newRow("a whole turn of 32 bits and an hour") << turn + 3600 << "in 01:00";
}

void TestUtility::tellsTheTimeLeft()
{
    QFETCH(const qint64, seconds);
    QFETCH(const QString, text);
    QCOMPARE(timeLeft(seconds), text);
}

void TestUtility::tellsTheTimeLeftWhereSummerTimeBegins()
{
    // A day without the time half past two.
    const QDateTime now(QDate(2026, 3, 29), QTime(0, 0));
    const StoppedClock clock(now);
    QString text;
    Utility::timeLeftForAlarmToTrigger(time_t(now.toSecsSinceEpoch() + 9000), text);
    QCOMPARE(text, "in 02:30");
}

void TestUtility::logsTheTimeLeftCall()
{
    const Support::LogCapture log;
    timeLeft(60);
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList({"static void Clock::Utility::timeLeftForAlarmToTrigger(const time_t&, QString&)",
                          "alarmTime 1298448060"}));
}

QTEST_GUILESS_MAIN(TestUtility)
#include "tst_utility.moc"
