// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/sqlitestore.h"
#include "platform/timed/validator.h"
#include "platform/timedclient/wire.h"
#include "tests/support/privatebus.h"
#include "tests/timed/mainthread.h"
#include "tests/timed/world.h"

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QTest>

using namespace Astel::Timed;

namespace {

constexpr int ManyEntries = 10000;
constexpr auto Trigger = "com.astel.context.Alarm.Trigger";

Wire::Event fullEvent()
{
    Wire::Event event = daily(7, 0, Wire::KeepAlive | Wire::Boot);
    event.attributes = {{"APPLICATION", "clock"}, {"TITLE", "Wake up"},   {"enabled", "1"},           {"sound", ""},
                        {"snooze", "10"},         {"alarmtime", "07:00"}, {"PLUGIN", "libclockalarm"}};
    return event;
}

} // namespace

/** The real program with as many events and as much of a past as it takes: what one call may keep all others waiting. */
class TestManyEvents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void questionKeepsNobodyWaiting_data();
    void questionKeepsNobodyWaiting();
    void changeKeepsNobodyWaiting_data();
    void changeKeepsNobodyWaiting();
    void fullBookIsPublishedToTheLastEvent();

private:
    QDBusMessage call(const QDBusMessage &question) const
    {
        QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(question);
        pending.waitForFinished();
        return pending.reply();
    }
    QDBusMessage call(const QString &method, const QVariantList &arguments) const
    {
        auto question = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, method);
        question.setArguments(arguments);
        return call(question);
    }
    QDBusMessage triggers() const
    {
        return call(QDBusMessage::createMethodCall(Trigger, "/com/astel/context/Alarm/Trigger",
                                                   "com.astel.context.Property", "get"));
    }
    /** What the daemon does for a call and after it, until it answers the next one. */
    template <typename Act>
    double workFor(Act act) const
    {
        const double before = mainThreadWork(m_daemon.processId());
        act();
        call("query_attributes", {0u});
        return mainThreadWork(m_daemon.processId()) - before;
    }

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    uint m_cookie = 0; ///< of the last change
};

void TestManyEvents::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Wire::registerTypes();
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    Change change;
    for (quint32 cookie = 1; cookie < MaximalEvents; ++cookie)
        change.put.append(AlarmEvent(cookie, fullEvent(), {State::Waiting, now + Day, now, {}, 0}));
    for (int i = 0; i < ManyEntries; ++i)
        change.journal.append({now - i, 1, "answered", "snooze of 600 s by user"});
    {
        const auto store = SqliteStore::create(qEnvironmentVariable("XDG_DATA_HOME") + "/timed", now);
        QVERIFY(store);
        QVERIFY((*store)->commit(change));
    }
    QVERIFY(m_daemon.start());
    QVERIFY(Support::PrivateBus::waitForService(Trigger, true, 20000));
    QVERIFY(mainThreadWork(m_daemon.processId()) > 0);
}

void TestManyEvents::questionKeepsNobodyWaiting_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    const auto query = [](const char *name, const QVariantMap &attributes) {
        QTest::newRow(name) << "query" << QVariantList{attributes};
    };
    query("all", {});
    query("none", {{"APPLICATION", "clock"}, {"TITLE", "Get up"}});
    query("a million bytes", {{"TITLE", QByteArray(1000000, 'x')}});
    QTest::newRow("query_attributes") << "query_attributes" << QVariantList{1u};
    QTest::newRow("next_triggers") << "next_triggers" << QVariantList{100u};
    QTest::newRow("journal") << "journal" << QVariantList{Q_INT64_C(0)};
    QTest::newRow("health") << "health" << QVariantList();
    QTest::newRow("triggers") << "triggers" << QVariantList();
}

void TestManyEvents::questionKeepsNobodyWaiting()
{
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);

    QDBusMessage answer;
    const double work = workFor([&] { answer = method == "triggers" ? triggers() : call(method, arguments); });
    QCOMPARE(answer.type(), QDBusMessage::ReplyMessage);
    qInfo("%s: answered in %.1f ms of work", QTest::currentDataTag(), work);
    QVERIFY(work < LongestWork);
}

void TestManyEvents::changeKeepsNobodyWaiting_data()
{
    QTest::addColumn<QString>("method");

    for (const char *method : {"add_event", "replace_event", "cancel"})
        QTest::newRow(method) << QString::fromLatin1(method);
}

void TestManyEvents::changeKeepsNobodyWaiting()
{
    QFETCH(QString, method);

    QVariantList arguments;
    if (method != "cancel")
        arguments.append(QVariant::fromValue(fullEvent()));
    if (method != "add_event")
        arguments.append(m_cookie);
    QDBusMessage answer;
    const double work = workFor([&] { answer = call(method, arguments); });
    QCOMPARE(answer.type(), QDBusMessage::ReplyMessage);
    m_cookie = answer.arguments().value(0).toUInt();
    QVERIFY(m_cookie > 0);
    qInfo("%s: stored, answered and published in %.1f ms of work", qUtf8Printable(method), work);
    QVERIFY(work < LongestWork);
}

void TestManyEvents::fullBookIsPublishedToTheLastEvent()
{
    const auto published
        = [this] { return qdbus_cast<QVariantMap>(triggers().arguments().value(0).value<QDBusVariant>().variant()); };
    QCOMPARE(published().size(), MaximalEvents - 1);
    const uint last = call("add_event", {QVariant::fromValue(fullEvent())}).arguments().value(0).toUInt();
    QCOMPARE(call("add_event", {QVariant::fromValue(fullEvent())}).errorName(), Wire::LimitError);
    QCOMPARE(published().size(), MaximalEvents);
    QVERIFY(published().contains(QString::number(last)));
}

QTEST_GUILESS_MAIN(TestManyEvents)
#include "tst_manyevents.moc"
