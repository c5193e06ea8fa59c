// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"
#include "platform/timed/schema.h"
#include "platform/timed/sqlitestore.h"
#include "platform/timed/validator.h"
#include "tests/support/logcapture.h"

#include <algorithm>
#include <csignal>
#include <QDir>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>
#include <sys/resource.h>

using namespace Astel::Timed;

namespace {

constexpr qint64 Now = Q_INT64_C(1795150800000);
constexpr qint64 Day = 86400000;

AlarmEvent stored(quint32 cookie, const QString &title = QStringLiteral("Wake up"))
{
    Wire::Event wire;
    wire.ticker = Now / 1000 + 3600;
    wire.flags = Wire::AllFlags;
    wire.timeoutSnooze = 300;
    wire.maximalTimeoutSnoozeCounter = 4;
    wire.attributes = {{"TITLE", title}, {"empty", ""}, {"quotes", "'\"\\\n\u2603"}};
    wire.recurrences = {{1u << 23, Wire::AllMinutes, 0x7f, Wire::AllDaysOfMonth, Wire::AllMonths, true}, {}};
    wire.buttons = {{0, {{"text", "Stop"}}}, {600, {}}};
    return AlarmEvent(cookie, wire, {State::Snoozed, Now + 5, Now, Now - 1000, 2});
}

/** Runs statements against a database that nobody else has open. */
bool execute(const QString &path, const QStringList &statements)
{
    constexpr auto connection = "aside";
    bool done = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
        database.setDatabaseName(path);
        QSqlQuery query(database.open() ? database : QSqlDatabase());
        done = std::all_of(statements.begin(), statements.end(), [&](const QString &one) { return query.exec(one); });
    }
    QSqlDatabase::removeDatabase(connection);
    return done;
}

int versionOf(const QString &path)
{
    QFile database(path);
    // The number is kept at this place of the file's head, in network order.
    if (!database.open(QIODevice::ReadOnly) || !database.seek(60))
        return -1;
    return qFromBigEndian<qint32>(database.read(sizeof(qint32)).constData());
}

/** A limit for the size of files stands in for a full disk; SIGXFSZ would end the process. */
class FullDisk
{
public:
    FullDisk()
    {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

} // namespace

class tst_SqliteStore : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home = std::make_unique<QTemporaryDir>(); }

    void everythingOutlivesTheStore();
    void newVersionTakesThePlaceOfTheOld();
    void lastCookieOutlivesItsEvent();
    void changeIsWrittenAsAWhole();
    void fullDiskFailsAndKeepsWhatIsStored();
    void journalBeginsWhereAskedAndForgetsAfterAYear();
    void recordThatCannotBeReadDoesNotLoseTheOthers();
    void secondStoreIsRefused();
    void newerSchemaIsRefusedAndLeftAlone();
    void folderThatCannotBeMadeIsRefused();
    void damagedFileIsSetAsideAndTheSnapshotRestored_data();
    void damagedFileIsSetAsideAndTheSnapshotRestored();
    void damagedSnapshotGivesAnEmptyStore();
    void snapshotIsWantedAfterTenCommitsOrADayWithAny();
    void oldSchemaIsBroughtToTheCurrentOne();
    void migrationThatFailsLeavesTheOldSchema();
    void restoredStoreGivesNoCookieAgain();
    void lostFileIsRestoredAsWell_data();
    void lostFileIsRestoredAsWell();
    void restorationIsRememberedAfterTheNextStart();
    void snapshotKeepsNobodyWaiting();

private:
    QString folder() const { return m_home->filePath("timed"); }
    QString file(const QString &suffix = {}) const { return folder() + "/events.db" + suffix; }
    std::unique_ptr<SqliteStore> open() const
    {
        auto store = SqliteStore::create(folder(), Now);
        return store ? std::move(*store) : nullptr;
    }
    void overwrite(const QString &path, qint64 offset, const QByteArray &bytes) const
    {
        QFile target(path);
        QVERIFY(target.open(QIODevice::ReadWrite));
        target.seek(offset);
        target.write(bytes);
    }

    /** A database as the first version of the daemon left it. */
    void writeVersionOne() const;

    std::unique_ptr<QTemporaryDir> m_home;
};

void tst_SqliteStore::writeVersionOne() const
{
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(execute(
        file(),
        {"PRAGMA journal_mode=WAL", "CREATE TABLE counter (last_cookie INTEGER NOT NULL)",
         "INSERT INTO counter VALUES (9)",
         "CREATE TABLE events (cookie INTEGER PRIMARY KEY, state TEXT NOT NULL, moment INTEGER, since INTEGER NOT NULL,"
         " last_due INTEGER, timeout_snoozes INTEGER NOT NULL, event TEXT NOT NULL)",
         QStringLiteral(
             "INSERT INTO events VALUES (5, 'WAITING', %1, %2, NULL, 0, '{\"attributes\":{\"TITLE\":\"Old\"},"
             "\"buttons\":[],\"flags\":8,\"maximalTimeoutSnoozeCounter\":0,\"recurrences\":[],"
             "\"ticker\":%3,\"timeoutSnooze\":0}')")
             .arg(Now + Day)
             .arg(Now)
             .arg((Now + Day) / 1000),
         "CREATE TABLE journal (moment INTEGER NOT NULL, cookie INTEGER NOT NULL, what TEXT NOT NULL,"
         " detail TEXT NOT NULL)",
         "CREATE INDEX journal_moment ON journal (moment)",
         QStringLiteral("INSERT INTO journal VALUES (%1, 5, 'due', '0 ms late')").arg(Now), "PRAGMA user_version=1"}));
}

void tst_SqliteStore::everythingOutlivesTheStore()
{
    const AlarmEvent full = stored(7);
    const AlarmEvent plain(8, {});
    QVERIFY(open()->commit({{full, plain}, {}, {{Now, 7, "due", "0 ms late"}}}));

    const auto store = open();
    const auto events = store->events();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events[0].cookie(), 7u);
    QVERIFY(events[0].wire() == full.wire());
    QVERIFY(events[0].standing() == full.standing());
    QVERIFY(events[1].wire() == plain.wire());
    QVERIFY(events[1].standing() == plain.standing());
    QCOMPARE(store->journal(0), (QList<Wire::JournalEntry>{{Now, 7, "due", "0 ms late"}}));
}

void tst_SqliteStore::newVersionTakesThePlaceOfTheOld()
{
    const auto store = open();
    QVERIFY(store->commit({{stored(1)}, {}, {}}));
    AlarmEvent changed = stored(1, "Get up");
    changed.finish(Now + 1);
    QVERIFY(store->commit({{changed}, {}, {}}));
    QCOMPARE(store->events().size(), 1);
    QCOMPARE(store->events()[0].state(), State::Finished);
    QCOMPARE(store->events()[0].moment(), std::optional<qint64>());
}

void tst_SqliteStore::lastCookieOutlivesItsEvent()
{
    QCOMPARE(open()->lastCookie(), 0u);
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(41), stored(42)}, {}, {}}));
        QVERIFY(store->commit({{}, {41, 42}, {}}));
    }
    QCOMPARE(open()->lastCookie(), 42u);
}

void tst_SqliteStore::changeIsWrittenAsAWhole()
{
    const auto store = open();
    QVERIFY(store->commit({{stored(1)}, {}, {}}));
    QVERIFY(store->commit({{stored(2)}, {1}, {{Now, 2, "due", {}}}}));
    QCOMPARE(store->events().size(), 1);
    QCOMPARE(store->events()[0].cookie(), 2u);
    QCOMPARE(store->journal(0).size(), 1);
}

void tst_SqliteStore::fullDiskFailsAndKeepsWhatIsStored()
{
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        {
            const FullDisk full;
            const auto failed = store->commit({{stored(2)}, {1}, {}});
            QVERIFY(!failed);
            QCOMPARE(failed.error().name, QLatin1String(Wire::StorageError));
            QVERIFY(!failed.error().text.isEmpty());
        }
        QCOMPARE(store->events().size(), 1);
        QCOMPARE(store->events()[0].cookie(), 1u);
        QVERIFY(store->commit({{stored(3)}, {}, {}}));
    }
    const auto store = open();
    QCOMPARE(store->events().size(), 2);
    QCOMPARE(store->lastCookie(), 3u);
}

void tst_SqliteStore::journalBeginsWhereAskedAndForgetsAfterAYear()
{
    QVERIFY(open()->commit(
        {{}, {}, {{Now - 400 * Day, 1, "due", {}}, {Now - Day, 1, "rang", {}}, {Now, 1, "answered", {}}}}));
    const auto store = open();
    QCOMPARE(store->journal(0).size(), 2);
    QCOMPARE(store->journal(Now - Day).size(), 2);
    QCOMPARE(store->journal(Now - Day + 1).size(), 1);
}

void tst_SqliteStore::recordThatCannotBeReadDoesNotLoseTheOthers()
{
    QVERIFY(open()->commit({{stored(1), stored(2), stored(3)}, {}, {}}));
    {
        const auto database = Database::open(folder());
        QSqlQuery query((*database)->connection());
        QVERIFY(query.exec("UPDATE events SET event = '{\"ticker\":' WHERE cookie = 1"));
        QVERIFY(query.exec("UPDATE events SET state = 'ASLEEP' WHERE cookie = 2"));
    }
    const Support::LogCapture log;
    QCOMPARE(open()->events().size(), 1);
    QCOMPARE(log.lines(QtWarningMsg).size(), 2);
}

void tst_SqliteStore::secondStoreIsRefused()
{
    const auto first = open();
    const auto second = SqliteStore::create(folder(), Now);
    QVERIFY(!second);
    QVERIFY2(second.error().text.contains("another daemon"), qPrintable(second.error().text));
}

void tst_SqliteStore::newerSchemaIsRefusedAndLeftAlone()
{
    QVERIFY(open()->commit({{stored(1)}, {}, {}}));
    {
        const auto database = Database::open(folder());
        QVERIFY(QSqlQuery((*database)->connection()).exec("PRAGMA user_version=99"));
    }
    const auto store = SqliteStore::create(folder(), Now);
    QVERIFY(!store);
    QVERIFY2(store.error().text.contains("newer version"), qPrintable(store.error().text));
    QVERIFY(QDir(folder()).entryList({"*.damaged-*"}).isEmpty());
}

void tst_SqliteStore::folderThatCannotBeMadeIsRefused()
{
    overwrite(m_home->filePath("timed"), 0, "a file");
    const auto store = SqliteStore::create(folder(), Now);
    QVERIFY(!store);
    QVERIFY2(store.error().text.contains("cannot write"), qPrintable(store.error().text));
}

void tst_SqliteStore::damagedFileIsSetAsideAndTheSnapshotRestored_data()
{
    QTest::addColumn<qint64>("offset");

    QTest::newRow("head") << qint64(0);
    QTest::newRow("schema page") << qint64(100);
    QTest::newRow("later page") << qint64(4096);
}

void tst_SqliteStore::damagedFileIsSetAsideAndTheSnapshotRestored()
{
    QFETCH(qint64, offset);

    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
        store->waitForSnapshot();
        QVERIFY(store->commit({{stored(2)}, {}, {}}));
    }
    const QByteArray garbage(8000, '\xa5');
    overwrite(file(), offset, garbage);

    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QCOMPARE(store->events().size(), 1);
    QCOMPARE(store->events()[0].cookie(), 1u);
    QVERIFY(store->lastCookie() > 2);
    QVERIFY(store->facts().value("store_restored").toBool());
    QCOMPARE(store->facts().value("store_integrity").toString(), "ok");
    QVERIFY(!log.lines(QtCriticalMsg).isEmpty());

    const QStringList aside = QDir(folder()).entryList({"events.db.damaged-*"});
    QCOMPARE(aside.size(), 1);
    QFile kept(folder() + '/' + aside.first());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    kept.seek(offset);
    QCOMPARE(kept.read(garbage.size()), garbage);
}

void tst_SqliteStore::damagedSnapshotGivesAnEmptyStore()
{
    QVERIFY(open()->commit({{stored(1)}, {}, {}}));
    overwrite(file(), 0, QByteArray(8000, '\xa5'));
    overwrite(file(".snapshot"), 0, QByteArray(8000, '\xa5'));
    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QVERIFY(store->events().isEmpty());
    QVERIFY(store->lastCookie() > 1);
    QCOMPARE(QDir(folder()).entryList({"events.db.damaged-*"}).size(), 2);
}

void tst_SqliteStore::snapshotIsWantedAfterTenCommitsOrADayWithAny()
{
    const auto store = open();
    for (quint32 cookie = 1; cookie <= 10; ++cookie) {
        QVERIFY(!store->wantsSnapshot(Now));
        QVERIFY(store->commit({{stored(cookie)}, {}, {}}));
    }
    QVERIFY(store->wantsSnapshot(Now));
    store->waitForSnapshot();
    QFile::remove(file(".snapshot"));
    store->takeSnapshot(Now);
    store->waitForSnapshot();
    QVERIFY(QFile::exists(file(".snapshot")));
    QVERIFY(!QFile::exists(file(".snapshot.new")));
    QVERIFY(!store->wantsSnapshot(Now + Day));

    QVERIFY(store->commit({{stored(11)}, {}, {}}));
    QVERIFY(!store->wantsSnapshot(Now + Day - 1));
    QVERIFY(store->wantsSnapshot(Now + Day));
    QVERIFY(store->wantsSnapshot(Now - Day));
}

void tst_SqliteStore::oldSchemaIsBroughtToTheCurrentOne()
{
    writeVersionOne();
    auto store = open();
    QVERIFY(store);
    const auto events = store->events();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].cookie(), 5u);
    QCOMPARE(events[0].state(), State::Waiting);
    QCOMPARE(events[0].moment(), std::optional(Now + Day));
    QCOMPARE(events[0].wire().attributes.value("TITLE"), "Old");
    QCOMPARE(store->lastCookie(), 9u);
    QCOMPARE(store->journal(0), (QList<Wire::JournalEntry>{{Now, 5, "due", "0 ms late"}}));
    QVERIFY(store->commit({{stored(10)}, {}, {}}));
    QVERIFY(!store->facts().contains("store_restored_moment"));
    store.reset();
    QCOMPARE(versionOf(file()), Schema::Version);
}

void tst_SqliteStore::migrationThatFailsLeavesTheOldSchema()
{
    writeVersionOne();
    // What the step to version 2 would add is there already.
    QVERIFY(execute(file(), {"ALTER TABLE counter ADD COLUMN restored INTEGER"}));
    const auto store = SqliteStore::create(folder(), Now);
    QVERIFY(!store);
    QCOMPARE(store.error().name, Wire::StorageError);
    QCOMPARE(versionOf(file()), 1);
}

void tst_SqliteStore::restoredStoreGivesNoCookieAgain()
{
    quint32 given = 0;
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
        store->waitForSnapshot();
        for (given = 2; given < 12; ++given)
            QVERIFY(store->commit({{stored(given)}, {}, {}}));
    }
    overwrite(file(), 0, QByteArray(8000, '\xa5'));
    {
        // Ended before it could do anything but put the snapshot in its place.
        const Support::LogCapture log;
        QVERIFY(Database::open(folder()));
    }
    const auto store = open();
    QVERIFY(store->lastCookie() >= given);
}

void tst_SqliteStore::lostFileIsRestoredAsWell_data()
{
    QTest::addColumn<bool>("empty");

    QTest::newRow("missing") << false;
    QTest::newRow("empty") << true;
}

void tst_SqliteStore::lostFileIsRestoredAsWell()
{
    QFETCH(bool, empty);

    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
    }
    QVERIFY(QFile::remove(file()));
    if (empty)
        overwrite(file(), 0, {});
    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QCOMPARE(store->events().size(), 1);
    QVERIFY(store->facts().value("store_restored").toBool());
}

void tst_SqliteStore::restorationIsRememberedAfterTheNextStart()
{
    QVERIFY(open());
    overwrite(file(), 0, QByteArray(8000, '\xa5'));
    const Support::LogCapture log;
    QVERIFY(open());
    const auto store = open();
    QVERIFY(!store->facts().value("store_restored").toBool());
    QCOMPARE(store->facts().value("store_restored_moment").toULongLong(), quint64(Now) * 1000000);
}

void tst_SqliteStore::snapshotKeepsNobodyWaiting()
{
    const auto store = open();
    Change many;
    for (quint32 cookie = 1; cookie <= MaximalEvents; ++cookie)
        many.put.append(stored(cookie));
    QVERIFY(store->commit(many));
    store->waitForSnapshot();
    QElapsedTimer time;
    time.start();
    store->takeSnapshot(Now);
    const qint64 begun = time.elapsed();
    QVERIFY(store->commit({{stored(1, "Get up")}, {}, {}}));
    const qint64 changed = time.elapsed();
    store->waitForSnapshot();
    qInfo("begun after %lld ms, changed after %lld ms, written after %lld ms", begun, changed, time.elapsed());
    QVERIFY(begun < 5);
    QCOMPARE(store->facts().value("store_integrity").toString(), "ok");
}

QTEST_GUILESS_MAIN(tst_SqliteStore)
#include "tst_sqlitestore.moc"
