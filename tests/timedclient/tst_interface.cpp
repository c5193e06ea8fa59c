// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/interface.h"

#include "platform/timedclient/event.h"
#include "tests/support/privatebus.h"

#include <ctime>
#include <functional>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QScopeGuard>
#include <QTest>

using Astel::Timed::Event;
using Astel::Timed::Interface;
namespace Wire = Astel::Timed::Wire;
namespace WallClock = Astel::Timed::WallClock;

namespace {

/** Stands where the daemon would, notes each call and gives the prepared answer. */
class Recorder : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        last = message;
        return connection.send(error.isEmpty() ? message.createReply(answer) : message.createErrorReply(error, "no"));
    }

    QDBusMessage last;
    QVariantList answer;
    QString error;
};

/** Seconds east of UTC by the zone that this process has read; asking reads no other one. */
long offsetOfTheZoneInUse()
{
    const std::time_t moment = 0;
    std::tm local = {};
    localtime_r(&moment, &local);
    return local.tm_gmtoff;
}

class Receiver : public QObject
{
    Q_OBJECT

public:
    QList<std::pair<WallClock::Info, bool>> received;
    int calls = 0;
    long offset = 0;

public slots:
    void timeChanged(const Astel::Timed::WallClock::Info &info, bool timeChanged)
    {
        received.append({info, timeChanged});
    }
    void changed()
    {
        ++calls;
        offset = offsetOfTheZoneInUse();
    }
    void somethingElse(int) { }
};

Event sampleEvent()
{
    Event event;
    event.setAttribute("APPLICATION", "clock");
    event.setAttribute("TITLE", QString::fromUtf8("Früh"));
    event.setSingleShotFlag();
    event.setReminderFlag();
    event.setTimeoutSnooze(600);
    event.setMaximalTimeoutSnoozeCounter(3);
    event.addButton().setSnooze(300);
    Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.addHour(7);
    recurrence.addMinute(59);
    recurrence.everyDayOfWeek();
    recurrence.everyDayOfMonth();
    recurrence.everyMonth();
    recurrence.setFillingGapsFlag();
    return event;
}

} // namespace

class TestInterface : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void sendsTheWholeEvent();
    void sendsTheCookieThatIsReplaced();
    void sendsTheOtherCalls_data();
    void sendsTheOtherCalls();
    void readsAnswersOfEveryType();
    void carriesTheRecordsOfABackup();
    void answersWithTheNamedError();
    void returnsBeforeTheAnswer();
    void connectsTheSettingsSignal();
    void connectsASlotOfFewerArguments();
    void readsTheZoneBeforeItTellsOfAnother();
    void refusesASlotThatIsNotThere_data();
    void refusesASlotThatIsNotThere();

private:
    QDBusConnection daemon() const { return QDBusConnection("daemon"); }
    template <typename Reply>
    void finish(Reply &reply);

    Support::PrivateBus m_bus;
    Recorder m_recorder;
};

void TestInterface::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QDBusConnection connection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "daemon");
    QVERIFY(connection.registerVirtualObject(Wire::Path, &m_recorder));
    QVERIFY(connection.registerService(Wire::Service));
}

void TestInterface::init()
{
    m_recorder.last = QDBusMessage();
    m_recorder.answer.clear();
    m_recorder.error.clear();
}

/** Waits without blocking the recorder, which lives in this thread. */
template <typename Reply>
void TestInterface::finish(Reply &reply)
{
    QTRY_VERIFY(reply.isFinished());
}

void TestInterface::sendsTheWholeEvent()
{
    Interface timed;
    m_recorder.answer = {7u};
    const Event event = sampleEvent();
    QDBusPendingReply<uint> reply = timed.add_event(event);
    finish(reply);
    QCOMPARE(reply.value(), 7u);
    QCOMPARE(m_recorder.last.member(), "add_event");
    QCOMPARE(m_recorder.last.signature(), "(xuiua{ss}a(utuuub)a(ia{ss}))");
    QVERIFY(qdbus_cast<Wire::Event>(m_recorder.last.arguments().first()) == event.toWire());
}

void TestInterface::sendsTheCookieThatIsReplaced()
{
    Interface timed;
    m_recorder.answer = {8u};
    QDBusPendingReply<uint> reply = timed.replace_event(sampleEvent(), 7);
    finish(reply);
    QCOMPARE(reply.value(), 8u);
    QCOMPARE(m_recorder.last.member(), "replace_event");
    QCOMPARE(m_recorder.last.signature(), "(xuiua{ss}a(utuuub)a(ia{ss}))u");
    QCOMPARE(m_recorder.last.arguments().at(1), QVariant(7u));
}

using Call = std::function<QDBusPendingCall(Interface &)>;
Q_DECLARE_METATYPE(Call)

void TestInterface::sendsTheOtherCalls_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("signature");
    QTest::addColumn<QVariantList>("arguments");

    QTest::newRow("cancel") << Call([](Interface &timed) { return timed.cancel(7); }) << "u" << QVariantList{7u};
    QTest::newRow("query_attributes") << Call([](Interface &timed) { return timed.query_attributes(7); }) << "u"
                                      << QVariantList{7u};
    QTest::newRow("rings") << Call([](Interface &timed) { return timed.rings(7); }) << "u" << QVariantList{7u};
    QTest::newRow("sounds") << Call([](Interface &timed) { return timed.sounds(7, "/tone"); }) << "us"
                            << QVariantList{7u, "/tone"};
    QTest::newRow("impaired") << Call([](Interface &timed) { return timed.impaired(7, "not heard"); }) << "us"
                              << QVariantList{7u, "not heard"};
    QTest::newRow("snooze") << Call([](Interface &timed) { return timed.snooze(7, 300, "test"); }) << "uus"
                            << QVariantList{7u, 300u, "test"};
    QTest::newRow("press") << Call([](Interface &timed) { return timed.press(7, 2, "test"); }) << "uus"
                           << QVariantList{7u, 2u, "test"};
    QTest::newRow("dismiss") << Call([](Interface &timed) { return timed.dismiss(7, "test"); }) << "us"
                             << QVariantList{7u, "test"};
    QTest::newRow("next_triggers") << Call([](Interface &timed) { return timed.next_triggers(10); }) << "u"
                                   << QVariantList{10u};
    QTest::newRow("journal") << Call([](Interface &timed) { return timed.journal(-5); }) << "x" << QVariantList{-5LL};
    QTest::newRow("backup_events") << Call([](Interface &timed) { return timed.backup_events(); }) << ""
                                   << QVariantList{};
    QTest::newRow("health") << Call([](Interface &timed) { return timed.health(); }) << "" << QVariantList{};
}

void TestInterface::sendsTheOtherCalls()
{
    QFETCH(const Call, call);
    QFETCH(const QString, signature);
    QFETCH(const QVariantList, arguments);
    Interface timed;
    QDBusPendingCall reply = call(timed);
    finish(reply);
    QCOMPARE(m_recorder.last.member(), QTest::currentDataTag());
    QCOMPARE(m_recorder.last.interface(), "com.astel.timed");
    QCOMPARE(m_recorder.last.path(), "/com/astel/timed");
    QCOMPARE(m_recorder.last.signature(), signature);
    QCOMPARE(m_recorder.last.arguments(), arguments);
}

void TestInterface::readsAnswersOfEveryType()
{
    Interface timed;

    m_recorder.answer = {true};
    QDBusPendingReply<bool> found = timed.cancel(7);
    finish(found);
    QVERIFY(found.value());

    m_recorder.answer = {QVariant(QVariantList{3u, 5u})};
    QDBusPendingReply<QVariantList> cookies = timed.query({{"APPLICATION", "clock"}});
    finish(cookies);
    QCOMPARE(cookies.value(), QVariantList({3u, 5u}));
    QCOMPARE(m_recorder.last.signature(), "a{sv}");

    m_recorder.answer = {QVariantMap{{"STATE", "WAITING"}}};
    QDBusPendingReply<QVariantMap> attributes = timed.query_attributes(7);
    finish(attributes);
    QCOMPARE(attributes.value(), (QVariantMap{{"STATE", "WAITING"}}));

    m_recorder.answer = {1298448000000000000ULL};
    QDBusPendingReply<quint64> until = timed.snooze(7, 0, "test");
    finish(until);
    QCOMPARE(until.value(), Q_UINT64_C(1298448000000000000));

    const QList<Wire::Trigger> triggers{{7, 1298448000000000000ULL}, {9, 1298448060000000000ULL}};
    m_recorder.answer = {QVariant::fromValue(triggers)};
    QDBusPendingReply<QList<Wire::Trigger>> next = timed.next_triggers(2);
    finish(next);
    QVERIFY(next.value() == triggers);

    const QList<Wire::JournalEntry> entries{{1298448000000, 7, "due", ""}, {1298448000001, 7, "missed", "off"}};
    m_recorder.answer = {QVariant::fromValue(entries)};
    QDBusPendingReply<QList<Wire::JournalEntry>> journal = timed.journal(0);
    finish(journal);
    QVERIFY(journal.value() == entries);
}

void TestInterface::carriesTheRecordsOfABackup()
{
    Interface timed;
    const Wire::Records records{{{sampleEvent().toWire(), "WAITING", 5}, {Wire::Event(), "FINISHED", 0}}};

    m_recorder.answer = {QVariant::fromValue(records)};
    QDBusPendingReply<Wire::Records> taken = timed.backup_events();
    finish(taken);
    QCOMPARE(taken.value().records, records.records);
    QVERIFY(!taken.value().oversized);

    m_recorder.answer = {QVariant::fromValue(QList<uint>{0, 7})};
    QDBusPendingReply<QList<uint>> cookies = timed.restore_events(records);
    finish(cookies);
    QCOMPARE(cookies.value(), (QList<uint>{0, 7}));
    QCOMPARE(m_recorder.last.member(), "restore_events");
    QCOMPARE(qdbus_cast<Wire::Records>(m_recorder.last.arguments().value(0)).records, records.records);
}

void TestInterface::answersWithTheNamedError()
{
    Interface timed;
    m_recorder.error = Wire::UnknownError;
    QDBusPendingReply<uint> reply = timed.replace_event(sampleEvent(), 7);
    finish(reply);
    QVERIFY(reply.isError());
    QCOMPARE(reply.error().name(), "com.astel.timed.Error.Unknown");
    QCOMPARE(reply.error().message(), "no");
}

void TestInterface::returnsBeforeTheAnswer()
{
    Interface timed;
    m_recorder.answer = {7u};
    // The recorder answers from this thread: whoever waited for it inside the call would wait in vain.
    QDBusPendingReply<uint> reply = timed.add_event(sampleEvent());
    QVERIFY(!reply.isFinished());
    finish(reply);
    QVERIFY(reply.isValid());
}

void TestInterface::connectsTheSettingsSignal()
{
    Interface timed;
    Receiver receiver;
    QVERIFY(timed.settings_changed_connect(&receiver, SLOT(timeChanged(const Astel::Timed::WallClock::Info &, bool))));
    const WallClock::Info info{"Europe/Berlin", 7200, true};
    QDBusMessage signal = QDBusMessage::createSignal(Wire::Path, Wire::Interface, "settings_changed");
    signal.setArguments({QVariant::fromValue(info), true});
    QVERIFY(daemon().send(signal));
    QTRY_COMPARE(receiver.received.size(), 1);
    QVERIFY(receiver.received.first().first == info);
    QVERIFY(receiver.received.first().second);
}

void TestInterface::connectsASlotOfFewerArguments()
{
    Interface timed;
    Receiver receiver;
    QVERIFY(timed.settings_changed_connect(&receiver, SLOT(changed())));
    QDBusMessage signal = QDBusMessage::createSignal(Wire::Path, Wire::Interface, "settings_changed");
    signal.setArguments({QVariant::fromValue(WallClock::Info{"UTC", 0, false}), false});
    QVERIFY(daemon().send(signal));
    QTRY_COMPARE(receiver.calls, 1);
}

void TestInterface::readsTheZoneBeforeItTellsOfAnother()
{
    Interface timed;
    Receiver receiver;
    QVERIFY(timed.settings_changed_connect(&receiver, SLOT(changed())));
    QCOMPARE(offsetOfTheZoneInUse(), 0L);
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "UTC-5:45");
    const auto restore = qScopeGuard([&before] {
        qputenv("TZ", before);
        tzset();
    });
    QDBusMessage signal = QDBusMessage::createSignal(Wire::Path, Wire::Interface, "settings_changed");
    signal.setArguments({QVariant::fromValue(WallClock::Info{"Asia/Kathmandu", 20700, false}), false});
    QVERIFY(daemon().send(signal));
    QTRY_COMPARE(receiver.calls, 1);
    QCOMPARE(receiver.offset, 20700L);
}

void TestInterface::refusesASlotThatIsNotThere_data()
{
    QTest::addColumn<QByteArray>("slot");

    QTest::newRow("no such name") << QByteArray(SLOT(noSuchSlot()));
    QTest::newRow("other arguments") << QByteArray(SLOT(somethingElse(int)));
    QTest::newRow("no signature") << QByteArray("1timeChanged");
    QTest::newRow("nothing") << QByteArray("");
}

void TestInterface::refusesASlotThatIsNotThere()
{
    QFETCH(const QByteArray, slot);
    Interface timed;
    Receiver receiver;
    QVERIFY(!timed.settings_changed_connect(&receiver, slot.constData()));
}

QTEST_GUILESS_MAIN(TestInterface)
#include "tst_interface.moc"
