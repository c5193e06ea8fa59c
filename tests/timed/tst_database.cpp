// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"
#include "platform/timed/schema.h"
#include "tests/support/fulldisk.h"
#include "tests/support/logcapture.h"
#include "tests/timed/storefolder.h"

#include <algorithm>
#include <QDir>
#include <QSqlQuery>
#include <QtEndian>
#include <QTest>

using namespace Astel::Timed;

namespace {

constexpr qint64 Day = 86400000;
const QByteArray Garbage(8000, '\xa5');

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

} // namespace

/** What the store does with the files that it finds. */
class TestDatabase : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<StoreFolder>(); }

    void keepsFewPagesInMemory();
    void secondStoreIsRefused();
    void newerSchemaIsRefusedAndLeftAlone();
    void folderThatCannotBeMadeIsRefused();
    void damagedFileIsSetAsideAndTheSnapshotRestored_data();
    void damagedFileIsSetAsideAndTheSnapshotRestored();
    void damagedSnapshotGivesAnEmptyStore();
    void oldSchemaIsBroughtToTheCurrentOne();
    void migrationThatFailsLeavesTheOldSchema();
    void restoredStoreGivesNoCookieAgain();
    void lostFileIsRestoredAsWell_data();
    void lostFileIsRestoredAsWell();
    void restorationIsRememberedAfterTheNextStart();
    void readOnlyDiskIsReadAndTakesNoChange();
    void readOnlyFileIsReadAndTakesNoChange();
    void fullDiskIsReadAndTakesNoChange_data();
    void fullDiskIsReadAndTakesNoChange();
    void damagedFileOnAReadOnlyDiskIsReadFromTheSnapshot();

private:
    std::unique_ptr<SqliteStore> open() const { return m_folder->open(); }
    QString folder() const { return m_folder->path(); }
    QString file(const QString &suffix = {}) const { return m_folder->file(suffix); }
    /** A database as the first version of the daemon left it. */
    void writeVersionOne() const;

    std::unique_ptr<StoreFolder> m_folder;
};

void TestDatabase::writeVersionOne() const
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

void TestDatabase::keepsFewPagesInMemory()
{
    const auto database = Database::open(folder());
    QVERIFY(database);
    QSqlQuery query("PRAGMA cache_size", (*database)->connection());
    QVERIFY(query.next());
    // In KiB where it is negative; 2 MB is usual.
    const int size = query.value(0).toInt();
    QVERIFY2(size < 0 && size >= -256, qPrintable(QString::number(size)));
}

void TestDatabase::secondStoreIsRefused()
{
    const auto first = open();
    const auto second = SqliteStore::create(folder(), Now);
    QVERIFY(!second);
    QVERIFY2(second.error().text.contains("another daemon"), qPrintable(second.error().text));
}

void TestDatabase::newerSchemaIsRefusedAndLeftAlone()
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

void TestDatabase::folderThatCannotBeMadeIsRefused()
{
    QVERIFY(StoreFolder::overwrite(folder(), 0, "a file"));
    const auto store = SqliteStore::create(folder(), Now);
    QVERIFY(!store);
    QVERIFY2(store.error().text.contains("cannot write"), qPrintable(store.error().text));
}

void TestDatabase::damagedFileIsSetAsideAndTheSnapshotRestored_data()
{
    QTest::addColumn<qint64>("offset");

    QTest::newRow("head") << qint64(0);
    QTest::newRow("schema page") << qint64(100);
    QTest::newRow("later page") << qint64(4096);
}

void TestDatabase::damagedFileIsSetAsideAndTheSnapshotRestored()
{
    QFETCH(qint64, offset);

    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
        store->waitForSnapshot();
        QVERIFY(store->commit({{stored(2)}, {}, {}}));
    }
    QVERIFY(StoreFolder::overwrite(file(), offset, Garbage));

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
    QCOMPARE(kept.read(Garbage.size()), Garbage);
}

void TestDatabase::damagedSnapshotGivesAnEmptyStore()
{
    QVERIFY(open()->commit({{stored(1)}, {}, {}}));
    QVERIFY(StoreFolder::overwrite(file(), 0, Garbage));
    QVERIFY(StoreFolder::overwrite(file(".snapshot"), 0, Garbage));
    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QVERIFY(store->events().isEmpty());
    QVERIFY(store->lastCookie() > 1);
    QCOMPARE(QDir(folder()).entryList({"events.db.damaged-*"}).size(), 2);
}

void TestDatabase::oldSchemaIsBroughtToTheCurrentOne()
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

void TestDatabase::migrationThatFailsLeavesTheOldSchema()
{
    writeVersionOne();
    // What the step to version 2 would add is there already.
    QVERIFY(execute(file(), {"ALTER TABLE counter ADD COLUMN restored INTEGER"}));
    const auto store = SqliteStore::create(folder(), Now);
    QVERIFY(!store);
    QCOMPARE(store.error().name, Wire::StorageError);
    QCOMPARE(versionOf(file()), 1);
}

void TestDatabase::restoredStoreGivesNoCookieAgain()
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
    QVERIFY(StoreFolder::overwrite(file(), 0, Garbage));
    {
        // Ended before it could do anything but put the snapshot in its place.
        const Support::LogCapture log;
        QVERIFY(Database::open(folder()));
    }
    const auto store = open();
    QVERIFY(store->lastCookie() >= given);
}

void TestDatabase::lostFileIsRestoredAsWell_data()
{
    QTest::addColumn<bool>("empty");

    QTest::newRow("missing") << false;
    QTest::newRow("empty") << true;
}

void TestDatabase::lostFileIsRestoredAsWell()
{
    QFETCH(bool, empty);

    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
    }
    QVERIFY(QFile::remove(file()));
    if (empty)
        QVERIFY(StoreFolder::overwrite(file(), 0, {}));
    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QCOMPARE(store->events().size(), 1);
    QVERIFY(store->facts().value("store_restored").toBool());
}

void TestDatabase::restorationIsRememberedAfterTheNextStart()
{
    QVERIFY(open());
    QVERIFY(StoreFolder::overwrite(file(), 0, Garbage));
    const Support::LogCapture log;
    QVERIFY(open());
    const auto store = open();
    QVERIFY(!store->facts().value("store_restored").toBool());
    QCOMPARE(store->facts().value("store_restored_moment").toULongLong(), quint64(Now) * 1000000);
}

void TestDatabase::readOnlyDiskIsReadAndTakesNoChange()
{
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {{Now, 1, "due", {}}}}));
    }
    {
        const ReadOnlyDisk disk(folder());
        QVERIFY(disk.isReadOnly());
        const Support::LogCapture log;
        const auto store = open();
        QVERIFY(store);
        QCOMPARE(store->events().size(), 1);
        QVERIFY(store->events()[0].wire() == stored(1).wire());
        QCOMPARE(store->journal(0).size(), 1);
        QCOMPARE(store->lastCookie(), 1u);
        const auto failed = store->commit({{stored(2)}, {1}, {}});
        QVERIFY(!failed);
        QCOMPARE(failed.error().name, Wire::StorageError);
        QVERIFY2(failed.error().text.contains("read-only"), qPrintable(failed.error().text));
        QVERIFY(!store->facts().value("store_writable").toBool());
        QCOMPARE(store->facts().value("store_path").toString(), file());
        QVERIFY(!store->wantsSnapshot(Now + 2 * Day));
        QVERIFY(log.lines(QtCriticalMsg).join('\n').contains(file()));
    }
    QVERIFY(open()->commit({{stored(3)}, {}, {}}));
    QCOMPARE(open()->events().size(), 2);
}

void TestDatabase::readOnlyFileIsReadAndTakesNoChange()
{
    QVERIFY(open()->commit({{stored(1)}, {}, {}}));
    const ReadOnlyDisk disk(file());
    QVERIFY(disk.isReadOnly());
    const Support::LogCapture log;
    const auto store = open();
    QVERIFY(store);
    QCOMPARE(store->events().size(), 1);
    QVERIFY(!store->commit({{stored(2)}, {}, {}}));
    QVERIFY(!store->facts().value("store_writable").toBool());
}

void TestDatabase::fullDiskIsReadAndTakesNoChange_data()
{
    QTest::addColumn<bool>("damaged");

    QTest::newRow("sound file") << false;
    QTest::newRow("damaged file") << true;
}

void TestDatabase::fullDiskIsReadAndTakesNoChange()
{
    QFETCH(bool, damaged);

    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
    }
    if (damaged)
        QVERIFY(StoreFolder::overwrite(file(), 0, Garbage));
    const Support::LogCapture log;
    {
        const Support::FullDisk full;
        const auto store = open();
        // With no room for a copy either there is no store, and no empty one in its place.
        if (store) {
            QCOMPARE(store->events().size(), 1);
            QVERIFY(!store->commit({{stored(2)}, {1}, {}}));
        }
    }
    QCOMPARE(open()->events().size(), 1);
}

void TestDatabase::damagedFileOnAReadOnlyDiskIsReadFromTheSnapshot()
{
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        store->takeSnapshot(Now);
    }
    QVERIFY(StoreFolder::overwrite(file(), 0, Garbage));
    const Support::LogCapture log;
    {
        const ReadOnlyDisk disk(folder());
        QCOMPARE(open()->events().size(), 1);
    }
    QVERIFY(QDir(folder()).entryList({"*.damaged-*"}).isEmpty());
    QCOMPARE(open()->events().size(), 1);
    QCOMPARE(QDir(folder()).entryList({"*.damaged-*"}).size(), 1);
}

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
