// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/validator.h"
#include "platform/timedclient/wire.h"
#include "tests/support/privatebus.h"
#include "tests/timed/daemonclient.h"
#include "tests/timed/mainthread.h"
#include "tests/timed/world.h"

#include <functional>
#include <QTest>

using namespace Astel::Timed;

using Edit = std::function<void(Wire::Event &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

constexpr auto UnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";

Wire::Attributes manyAttributes(int count)
{
    Wire::Attributes result;
    for (int i = 0; i < count; ++i)
        result.insert(QStringLiteral("attribute %1").arg(i), "value");
    return result;
}

/** Every character of the basic plane that text on the bus can have, and both ends of the others. */
QString everyCharacter()
{
    // Of even length before the others, which come in pairs that no piece of even length tears apart.
    QString result = "x";
    for (char32_t code = 1; code <= 0x10ffff; ++code) {
        const bool end = (code & 0xffff) < 32 || (code & 0xffff) >= 0xffe0;
        // SQLite answers the two that are no characters with a replacement character.
        const bool character = !QChar::isSurrogate(code) && code != 0xfffe && code != 0xffff;
        if (character && (code <= 0xffff || end))
            result += QStringView(QChar::fromUcs4(code));
    }
    return result;
}

/** Where two texts first differ. */
QString differences(const QString &one, const QString &other)
{
    const auto [at, in] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    if (at == one.end() && in == other.end())
        return {};
    return QStringLiteral("%1 characters, %2 expected; at %3 %4 instead of %5")
        .arg(one.size())
        .arg(other.size())
        .arg(in - other.begin())
        .arg(at == one.end() ? 0 : at->unicode(), 0, 16)
        .arg(in == other.end() ? 0 : in->unicode(), 0, 16);
}

/** An alarm with text in attributes as long as may be. */
Wire::Event withText(const QString &text)
{
    Wire::Event event = daily(7, 0);
    for (qsizetype at = 0; at < text.size(); at += 4000)
        event.attributes.insert(QString::number(at), text.mid(at, 4000));
    return event;
}

} // namespace

/** The real program and callers that mean it harm, or do not know better. */
class TestHardening : public QObject, private DaemonClient
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void argumentsThatDoNotFitAreRefused_data();
    void argumentsThatDoNotFitAreRefused();
    void hugeEventIsRefusedAtOnce_data();
    void hugeEventIsRefusedAtOnce();
    void hugeQueryIsRefusedAtOnce();
    void rareMomentsKeepNobodyWaiting();
    void everyTextOutlivesAKill();
    void storeTakesSoMuchTextAndNoMore();

private:
    QVariantMap attributesOf(uint cookie) const { return ask<QVariantMap>("query_attributes", {cookie}); }
    QVariantList cookies() const { return ask<QVariantList>("query", {QVariantMap()}); }
    double workDone() const { return mainThreadWork(m_daemon.processId()); }

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestHardening::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Wire::registerTypes();
    QVERIFY(m_daemon.start());
    QVERIFY(workDone() > 0);
}

void TestHardening::cleanup()
{
    QVERIFY(cancelAll());
}

void TestHardening::argumentsThatDoNotFitAreRefused_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    QTest::newRow("no such method") << "add_everything" << QVariantList{1u};
    QTest::newRow("event missing") << "add_event" << QVariantList();
    QTest::newRow("text for an event") << "add_event" << QVariantList{"event"};
    QTest::newRow("map for an event") << "add_event" << QVariantList{QVariantMap{{"ticker", 1}}};
    QTest::newRow("recurrence for an event") << "add_event" << QVariantList{QVariant::fromValue(Wire::Recurrence())};
    QTest::newRow("cookie missing") << "replace_event" << QVariantList{QVariant::fromValue(Wire::Event())};
    QTest::newRow("signed cookie") << "cancel" << QVariantList{1};
    QTest::newRow("wide cookie") << "query_attributes" << QVariantList{Q_UINT64_C(1)};
    QTest::newRow("list for a map") << "query" << QVariantList{QVariantList{1}};
    QTest::newRow("seconds as text") << "snooze" << QVariantList{1u, "60", "user"};
    QTest::newRow("user missing") << "dismiss" << QVariantList{1u};
    QTest::newRow("narrow moment") << "journal" << QVariantList{1u};
    QTest::newRow("negative count") << "next_triggers" << QVariantList{-1};
}

void TestHardening::argumentsThatDoNotFitAreRefused()
{
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);

    QCOMPARE(errorOf(method, arguments), UnknownMethod);
    QVERIFY(cookies().isEmpty());
}

void TestHardening::hugeEventIsRefusedAtOnce_data()
{
    QTest::addColumn<Edit>("edit");

    const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
    row("10000 attributes", [](auto &event) { event.attributes = manyAttributes(10000); });
    row("300000 attributes", [](auto &event) { event.attributes = manyAttributes(300000); });
    row("1000000 recurrences", [](auto &event) { event.recurrences.fill({}, 1000000); });
    row("200000 buttons", [](auto &event) { event.buttons.fill({60, {{"text", "Snooze"}}}, 200000); });
    row("buttons of 300 attributes", [](auto &event) { event.buttons.fill({60, manyAttributes(300)}, 300); });
    row("value of 16 million", [](auto &event) { event.attributes = {{"TITLE", QString(16000000, 'x')}}; });
}

void TestHardening::hugeEventIsRefusedAtOnce()
{
    QFETCH(Edit, edit);

    Wire::Event event;
    edit(event);
    const uint other = add(daily(7, 0));
    const double before = workDone();
    QCOMPARE(errorOf("add_event", {QVariant::fromValue(event)}), Wire::LimitError);
    QCOMPARE(errorOf("replace_event", {QVariant::fromValue(event), other}), Wire::LimitError);
    const double work = workDone() - before;
    qInfo("refused twice in %.1f ms of work", work);
    QVERIFY(work / 2 < LongestWork);
    QCOMPARE(attributesOf(other).value("STATE").toString(), "WAITING");
}

void TestHardening::hugeQueryIsRefusedAtOnce()
{
    QVariantMap attributes;
    for (int i = 0; i < 200000; ++i)
        attributes.insert(QStringLiteral("attribute %1").arg(i), i);
    const double before = workDone();
    QCOMPARE(errorOf("query", {attributes}), Wire::LimitError);
    const double work = workDone() - before;
    qInfo("refused in %.1f ms of work", work);
    QVERIFY(work < LongestWork);
}

void TestHardening::rareMomentsKeepNobodyWaiting()
{
    // On a 29 February that is a Monday, every 28 years.
    Wire::Event rare = daily(7, 0);
    rare.recurrences[0].daysOfWeek = 1u << 1;
    rare.recurrences[0].daysOfMonth = 1u << 29;
    rare.recurrences[0].months = 1u << 2;
    rare.recurrences.fill(rare.recurrences[0], 16);
    rare.recurrences[1] = daily(7, 0).recurrences[0];
    rare.recurrences[1].minutes = 0;
    rare.recurrences[2] = daily(7, 0).recurrences[0];
    rare.recurrences[2].hours = 0;
    for (int i = 0; i < 20; ++i)
        QVERIFY(add(rare) > 0);
    const double before = workDone();
    const auto triggers = ask<QList<Wire::Trigger>>("next_triggers", {4294967295u});
    const double work = workDone() - before;
    QCOMPARE(triggers.size(), 100);
    qInfo("answered in %.1f ms of work", work);
    // The search takes a tenth of the time in an optimised build.
    QVERIFY(work < 10 * LongestWork);
}

void TestHardening::everyTextOutlivesAKill()
{
    const QString text = everyCharacter();
    QVERIFY(text.size() > 60000);
    QMap<uint, Wire::Event> events;
    for (qsizetype at = 0; at < text.size(); at += 28000) {
        const Wire::Event event = withText(text.mid(at, 28000));
        const uint cookie = add(event);
        QVERIFY(cookie > 0);
        events.insert(cookie, event);
    }
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    for (auto it = events.begin(); it != events.end(); ++it) {
        QVariantMap found = attributesOf(it.key());
        QCOMPARE(found.take("STATE").toString(), "WAITING");
        QCOMPARE(found.size(), it->attributes.size());
        for (auto attribute = it->attributes.begin(); attribute != it->attributes.end(); ++attribute)
            QCOMPARE(differences(found.value(attribute.key()).toString(), *attribute), QString());
    }
}

void TestHardening::storeTakesSoMuchTextAndNoMore()
{
    const Wire::Event large = withText(QString(32000, 'x'));
    const qsizetype fitting = MaximalText / textSize(large);
    for (qsizetype i = 0; i < fitting; ++i)
        QVERIFY(add(large) > 0);
    QCOMPARE(errorOf("add_event", {QVariant::fromValue(large)}), Wire::LimitError);
    QVERIFY(add(daily(7, 0)) > 0);
    const uint one = cookies()[0].toUInt();
    const double before = workDone();
    const uint replaced = ask<uint>("replace_event", {QVariant::fromValue(large), one});
    QVERIFY(replaced > 0);
    QVERIFY(workDone() - before < LongestWork);
    QVERIFY(ask<bool>("cancel", {replaced}));
    QVERIFY(add(large) > 0);
}

QTEST_GUILESS_MAIN(TestHardening)
#include "tst_hardening.moc"
