// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/backupservice.h"
#include "platform/timed/moments.h"
#include "platform/timed/validator.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

constexpr quint32 Kept = Wire::Backup | Wire::KeepAlive;
constexpr quint32 Once = Kept | Wire::SingleShot;

Wire::Event titled(Wire::Event event, const QString &title)
{
    event.attributes.insert("TITLE", title);
    return event;
}

} // namespace

/** The records that a backup takes, put into the same daemon or a fresh one, with time in the test's hand. */
class TestBackupService : public QObject
{
    Q_OBJECT

private slots:
    void takesTheEventsWithTheFlagAndHowTheyStand();
    void bringsAllBackIntoAnEmptyDaemon();
    void storesNothingTwice();
    void storesEqualEventsAsOftenAsTheyWere();
    void putsASingleShotWhereItBelongs_data();
    void putsASingleShotWhereItBelongs();
    void refusesAllForOneBadRecord_data();
    void refusesAllForOneBadRecord();
    void staysWithinTheLimits();
    void aFullDiskLeavesEverythingAsItWas();
};

void TestBackupService::takesTheEventsWithTheFlagAndHowTheyStand()
{
    World world(utc("2026-11-20T05:00:00"));
    world.add(daily(7, 0, Kept));
    world.add(daily(8, 0));
    Wire::Event off;
    off.ticker = 0;
    off.flags = Kept;
    world.add(off);
    const Wire::Records taken = world.parts->backup.records();
    QCOMPARE(taken.records.size(), 2);
    QCOMPARE(taken.records[0].event, daily(7, 0, Kept));
    QCOMPARE(taken.records[0].state, "WAITING");
    QCOMPARE(taken.records[0].moment, toNanoseconds(*world.moment(1)));
    QCOMPARE(taken.records[1].event, off);
    QCOMPARE(taken.records[1].state, "INACTIVE");
    QCOMPARE(taken.records[1].moment, quint64(0));
}

void TestBackupService::bringsAllBackIntoAnEmptyDaemon()
{
    World before(utc("2026-11-20T05:00:00"));
    before.add(daily(7, 0, Kept));
    before.add(daily(8, 30, Kept));
    const Wire::Records taken = before.parts->backup.records();

    World after(utc("2026-11-20T05:10:00"));
    after.add(daily(9, 0));
    QCOMPARE(*after.parts->backup.restore(taken), (QList<quint32>{2, 3}));
    QCOMPARE(after.parts->backup.records().records, taken.records);
    QCOMPARE(after.moment(2), before.moment(1));
    QCOMPARE(after.timer.armed, before.moment(1));
}

void TestBackupService::storesNothingTwice()
{
    World world(utc("2026-11-20T05:00:00"));
    const quint32 first = world.add(daily(7, 0, Kept));
    const quint32 second = world.add(daily(8, 30, Kept));
    const Wire::Records taken = world.parts->backup.records();
    QCOMPARE(*world.parts->backup.restore(taken), (QList<quint32>{0, 0}));
    QVERIFY(*world.parts->service.cancel(first));
    QCOMPARE(*world.parts->backup.restore(taken), (QList<quint32>{second + 1, 0}));
    QCOMPARE(*world.parts->backup.restore(taken), (QList<quint32>{0, 0}));
    QCOMPARE(world.parts->book.events().size(), 2u);
}

void TestBackupService::storesEqualEventsAsOftenAsTheyWere()
{
    World world(utc("2026-11-20T05:00:00"));
    world.add(daily(7, 0, Kept));
    Wire::Records taken = world.parts->backup.records();
    taken.records += {taken.records.first(), taken.records.first()};
    QCOMPARE(*world.parts->backup.restore(taken), (QList<quint32>{0, 2, 3}));
    QCOMPARE(*world.parts->backup.restore(taken), (QList<quint32>{0, 0, 0}));
}

void TestBackupService::putsASingleShotWhereItBelongs_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<QString>("state");
    QTest::addColumn<qint64>("due");
    QTest::addColumn<QString>("becomes");
    QTest::addColumn<qint64>("moment");

    // The daily rule falls at 06:00 UTC; it is 05:00.
    const qint64 now = utc("2026-11-20T05:00:00");
    const qint64 next = utc("2026-11-20T06:00:00");
    const auto row
        = [](const char *name, quint32 flags, const char *state, qint64 due, const char *becomes, qint64 moment) {
              QTest::newRow(name) << flags << QString(state) << due << QString(becomes) << moment;
          };
    row("ahead", Once, "WAITING", next, "WAITING", next);
    row("ahead by the rule of another zone", Once, "WAITING", next + 3 * Hour, "WAITING", next);
    row("passed a while ago, off", Once, "WAITING", now - Day, "FINISHED", 0);
    row("passed years ago, off", Once, "WAITING", now - 1000 * Day, "FINISHED", 0);
    row("passed eleven minutes ago, off", Once, "WAITING", now - 11 * Minute, "FINISHED", 0);
    row("passed just now, rings", Once, "WAITING", now - 9 * Minute, "WAITING", now - 9 * Minute);
    row("served before", Once, "FINISHED", 0, "FINISHED", 0);
    row("snoozed", Once, "SNOOZED", now + Minute, "FINISHED", 0);
    row("rang", Once, "TRIGGERED", now - Minute, "FINISHED", 0);
    row("not kept", Wire::Backup | Wire::SingleShot, "WAITING", now - Day, "", 0);
    row("not kept, ahead", Wire::Backup | Wire::SingleShot, "WAITING", next, "WAITING", next);
    row("recurring, passed", Kept, "WAITING", now - Day, "WAITING", next);
    row("recurring, snoozed", Kept, "SNOOZED", now - Day, "WAITING", next);
}

void TestBackupService::putsASingleShotWhereItBelongs()
{
    QFETCH(const quint32, flags);
    QFETCH(const QString, state);
    QFETCH(const qint64, due);
    QFETCH(const QString, becomes);
    QFETCH(const qint64, moment);

    World world(utc("2026-11-20T05:00:00"));
    const Wire::Records records{{{daily(7, 0, flags), state, toNanoseconds(due)}}};
    const auto cookies = world.parts->backup.restore(records);
    QCOMPARE(*cookies, QList<quint32>{becomes.isEmpty() ? 0u : 1u});
    if (becomes.isEmpty())
        return;
    QCOMPARE(stateName(world.state(1)), becomes);
    QCOMPARE(world.moment(1).value_or(0), moment);
    QCOMPARE(*world.parts->backup.restore(records), QList<quint32>{0u});
}

void TestBackupService::refusesAllForOneBadRecord_data()
{
    QTest::addColumn<Wire::Record>("bad");
    QTest::addColumn<QString>("error");

    Wire::Event ticker = daily(7, 0, Kept);
    ticker.ticker = -2;
    QTest::newRow("ticker") << Wire::Record{ticker, "WAITING", 0} << QString(Wire::InvalidError);
    QTest::newRow("state") << Wire::Record{daily(7, 0, Kept), "ASLEEP", 0} << QString(Wire::InvalidError);
    QTest::newRow("no state") << Wire::Record{daily(7, 0, Kept), "", 0} << QString(Wire::InvalidError);
    QTest::newRow("text") << Wire::Record{titled(daily(7, 0, Kept), QString(5000, 'x')), "WAITING", 0}
                          << QString(Wire::LimitError);
}

void TestBackupService::refusesAllForOneBadRecord()
{
    QFETCH(const Wire::Record, bad);
    QFETCH(const QString, error);

    World world(utc("2026-11-20T05:00:00"));
    const auto cookies = world.parts->backup.restore({{{daily(6, 0, Kept), "WAITING", 0}, bad}});
    QVERIFY(!cookies);
    QCOMPARE(cookies.error().name, error);
    QVERIFY(world.parts->book.events().empty());
    QCOMPARE(world.add(daily(7, 0)), 1u);
}

void TestBackupService::staysWithinTheLimits()
{
    World world(utc("2026-11-20T05:00:00"));
    world.add(daily(6, 0));
    Wire::Records records;
    records.records.fill({daily(7, 0, Kept), "WAITING", 0}, MaximalEvents);
    const auto tooMany = world.parts->backup.restore(records);
    QVERIFY(!tooMany);
    QCOMPARE(tooMany.error().name, Wire::LimitError);

    // 2100 events of more than 4000 characters.
    records.records.fill({titled(daily(7, 0, Kept), QString(4000, 'x')), "WAITING", 0}, 2100);
    const auto tooLong = world.parts->backup.restore(records);
    QVERIFY(!tooLong);
    QCOMPARE(tooLong.error().name, Wire::LimitError);

    records.oversized = true;
    QVERIFY(!world.parts->backup.restore(records));
    QCOMPARE(world.parts->book.events().size(), 1u);
}

void TestBackupService::aFullDiskLeavesEverythingAsItWas()
{
    World world(utc("2026-11-20T05:00:00"));
    world.store.failing = true;
    const auto cookies = world.parts->backup.restore({{{daily(7, 0, Kept), "WAITING", 0}}});
    QVERIFY(!cookies);
    QCOMPARE(cookies.error().name, Wire::StorageError);
    QVERIFY(world.parts->book.events().empty());
    QVERIFY(!world.timer.armed);
}

QTEST_GUILESS_MAIN(TestBackupService)
#include "tst_backupservice.moc"
