// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/wire.h"
#include "tests/support/places.h"
#include "tests/support/privatebus.h"
#include "tests/timed/buswatch.h"
#include "tests/timed/daemonclient.h"
#include "tests/timed/world.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>
#include <QXmlStreamReader>

using namespace Astel::Timed;

namespace {

/** Methods and signals with arguments and annotations, one line each, as an introspection text has them. */
QStringList described(const QByteArray &xml)
{
    QStringList result;
    QStringList context;
    QXmlStreamReader reader(xml);
    bool ours = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto attribute = [&](const char *name) { return reader.attributes().value(name).toString(); };
        if (reader.name() == QLatin1String("interface"))
            ours = attribute("name") == QLatin1String(Wire::Interface);
        if (!ours)
            continue;
        if (reader.name() == QLatin1String("method") || reader.name() == QLatin1String("signal"))
            context = QStringList{reader.name().toString(), attribute("name")};
        const QString direction = context.value(0) == "signal" ? QString() : attribute("direction");
        result.append((context
                       + QStringList{reader.name().toString(), attribute("name"), attribute("type"), direction,
                                     attribute("value")})
                          .join(' '));
    }
    result.sort();
    return result;
}

QVariantList randomArguments(QRandomGenerator &random)
{
    switch (random.bounded(8)) {
    case 0:
        return {QStringLiteral("cookie %1").arg(random.generate())};
    case 1:
        return {int(random.generate())};
    case 2:
        return {QVariantMap{{"cookie", random.generate()}}};
    case 3:
        return {};
    case 4:
        return {random.generate(), random.generate()};
    case 5:
        return {random.generate64()};
    default:
        return {random.generate() >> random.bounded(32)};
    }
}

} // namespace

/** What the real program answers, on a bus of its own. */
class TestDaemon : public QObject, private DaemonClient
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void introspectionEqualsTheDescription();
    void scheduledEventSaysWaitingAtOnce();
    void eachChangeIsAnsweredAndThenPublishedOnce();
    void unknownCookieIsNoError();
    void queryHoldsAllAttributesInCookieOrder();
    void refusalsAreNamed();
    void healthKnowsWhatTheTimerIsArmedFor();
    void randomCallsEndInAnswersOrNamedErrors();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestDaemon::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Wire::registerTypes();
    QVERIFY(m_daemon.start());
}

void TestDaemon::cleanup()
{
    QVERIFY(cancelAll());
}

void TestDaemon::introspectionEqualsTheDescription()
{
    QFile file(Places::source("platform/timedclient/com.astel.timed.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList expected = described(file.readAll());
    QVERIFY(expected.size() > 30);

    const QDBusMessage question = QDBusMessage::createMethodCall(Wire::Service, Wire::Path,
                                                                 "org.freedesktop.DBus.Introspectable", "Introspect");
    const QDBusReply<QString> live = QDBusConnection::sessionBus().call(question);
    QVERIFY(live.isValid());
    QCOMPARE(described(live.value().toUtf8()), expected);
}

void TestDaemon::scheduledEventSaysWaitingAtOnce()
{
    const uint cookie = add(daily(7, 0));
    QCOMPARE(stateOf(cookie), "WAITING");
    const uint replacement = ask<uint>("replace_event", {QVariant::fromValue(daily(8, 0)), cookie});
    QCOMPARE(stateOf(replacement), "WAITING");
    QVERIFY(ask<QVariantMap>("query_attributes", {cookie}).isEmpty());
    Wire::Event disabled = daily(7, 0);
    disabled.ticker = 0;
    QCOMPARE(stateOf(add(disabled)), "INACTIVE");
    QCOMPARE(stateOf(add({})), "INACTIVE");
}

void TestDaemon::eachChangeIsAnsweredAndThenPublishedOnce()
{
    BusWatch watch(QDBusConnection::sessionBus());
    QStringList expected;
    for (int i = 1; i <= 20; ++i) {
        watch.expect(call("add_event", {QVariant::fromValue(daily(7, i))}));
        expected += {"reply", QStringLiteral("published %1").arg(i)};
    }
    QTRY_COMPARE(watch.arrived, expected);
    const uint one = watch.lastMap.firstKey().toUInt();
    QCOMPARE(watch.lastMap.first().metaType(), QMetaType::fromType<qulonglong>());
    const quint64 now = quint64(QDateTime::currentMSecsSinceEpoch()) * 1000000;
    QVERIFY(watch.lastMap.first().toULongLong() > now);

    watch.arrived.clear();
    watch.expect(call("replace_event", {QVariant::fromValue(daily(9, 0)), one}));
    watch.expect(call("cancel", {watch.lastMap.lastKey().toUInt()}));
    watch.expect(call("cancel", {watch.lastMap.lastKey().toUInt()}));
    watch.expect(call("add_event", {QVariant::fromValue(Wire::Event())}));
    watch.expect(call("query_attributes", {one}));
    QTRY_COMPARE(watch.arrived,
                 (QStringList{"reply", "published 20", "reply", "published 19", "reply", "reply", "reply"}));
    QVERIFY(!watch.lastMap.contains(QString::number(one)));
}

void TestDaemon::unknownCookieIsNoError()
{
    QDBusPendingReply<bool> cancelled = call("cancel", {4711u});
    cancelled.waitForFinished();
    QVERIFY(cancelled.isValid());
    QVERIFY(!cancelled.value());
    QDBusPendingReply<QVariantMap> attributes = call("query_attributes", {4711u});
    attributes.waitForFinished();
    QVERIFY(attributes.isValid());
    QVERIFY(attributes.value().isEmpty());
}

void TestDaemon::queryHoldsAllAttributesInCookieOrder()
{
    const auto event = [](const Wire::Attributes &attributes) {
        Wire::Event result = daily(7, 0);
        result.attributes = attributes;
        return result;
    };
    const uint one = add(event({{"APPLICATION", "clock"}, {"snooze", "10"}}));
    const uint two = add(event({{"APPLICATION", "calendar"}, {"snooze", "10"}}));
    const uint three = add(event({{"APPLICATION", "clock"}, {"snooze", "5"}}));
    const auto query = [this](const QVariantMap &attributes) { return ask<QVariantList>("query", {attributes}); };
    QCOMPARE(query({{"APPLICATION", "clock"}}), (QVariantList{one, three}));
    QCOMPARE(query({{"snooze", 10}}), (QVariantList{one, two}));
    QCOMPARE(query({{"APPLICATION", "clock"}, {"snooze", 10}}), QVariantList{one});
    QCOMPARE(query({{"missing", ""}}), QVariantList());
    QCOMPARE(query({}), (QVariantList{one, two, three}));
}

void TestDaemon::refusalsAreNamed()
{
    Wire::Event invalid;
    invalid.ticker = -2;
    Wire::Event large;
    large.attributes = {{"TITLE", QString(5000, 'x')}};
    QCOMPARE(errorOf("add_event", {QVariant::fromValue(invalid)}), Wire::InvalidError);
    QCOMPARE(errorOf("add_event", {QVariant::fromValue(large)}), Wire::LimitError);
    QCOMPARE(errorOf("replace_event", {QVariant::fromValue(daily(7, 0)), 4711u}), Wire::UnknownError);
    QCOMPARE(errorOf("rings", {4711u}), Wire::UnknownError);
    QCOMPARE(errorOf("sounds", {4711u, "tone"}), Wire::UnknownError);
    QCOMPARE(errorOf("snooze", {4711u, 60u, "user"}), Wire::UnknownError);
    QCOMPARE(errorOf("press", {4711u, 1u, "user"}), Wire::UnknownError);
    QCOMPARE(errorOf("dismiss", {4711u, "user"}), Wire::UnknownError);
}

void TestDaemon::healthKnowsWhatTheTimerIsArmedFor()
{
    QVERIFY(!ask<QVariantMap>("health", {}).contains("armed_moment"));
    add(daily(7, 0));
    const auto facts = ask<QVariantMap>("health", {});
    const auto armed = facts.value("armed_moment").toULongLong();
    const auto next = ask<QList<Wire::Trigger>>("next_triggers", {1u}).value(0).moment;
    QVERIFY(armed > 0);
    QVERIFY(std::llabs(qint64(armed - next)) < 5000000);
    QCOMPARE(facts.value("next_moment").toULongLong(), next);
    QCOMPARE(facts.value("events").toUInt(), 1u);
    QCOMPARE(facts.value("store_integrity").toString(), "ok");
    QCOMPARE(facts.value("zone").toString(), qEnvironmentVariable("TZ"));
}

void TestDaemon::randomCallsEndInAnswersOrNamedErrors()
{
    constexpr int calls = 10000;
    constexpr int atOnce = 100;
    QRandomGenerator random(20261120);
    const uint cookie = add(daily(7, 0));
    const qint64 process = m_daemon.processId();
    int answers = 0;
    for (int i = 0; i < calls; i += atOnce) {
        QList<QDBusPendingCall> pending;
        for (int j = 0; j < atOnce; ++j)
            pending.append(call("query_attributes", randomArguments(random)));
        for (QDBusPendingCall &one : pending) {
            one.waitForFinished();
            answers += one.isError() ? 0 : 1;
            if (one.isError())
                QCOMPARE(one.error().name(), "org.freedesktop.DBus.Error.UnknownMethod");
        }
    }
    QVERIFY(answers > 0 && answers < calls);
    QCOMPARE(m_daemon.processId(), process);
    QCOMPARE(stateOf(cookie), "WAITING");
}

QTEST_GUILESS_MAIN(TestDaemon)
#include "tst_daemon.moc"
