// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"
#include "platform/timed/validator.h"
#include "tests/support/fulldisk.h"
#include "tests/support/logcapture.h"
#include "tests/timed/storefolder.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTest>

using namespace Astel::Timed;

namespace {

constexpr qint64 Day = 86400000;
constexpr qint64 TenMinutes = 600000;
} // namespace

class TestSqliteStore : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<StoreFolder>(); }

    void everythingOutlivesTheStore();
    void newVersionTakesThePlaceOfTheOld();
    void lastCookieOutlivesItsEvent();
    void changeIsWrittenAsAWhole();
    void fullDiskFailsAndKeepsWhatIsStored();
    void journalBeginsWhereAskedAndForgetsAfterAYear();
    void recordThatCannotBeReadDoesNotLoseTheOthers();
    void snapshotIsWantedAfterTenCommitsOrTenMinutesWithAny();
    void snapshotKeepsNobodyWaiting();
    void knowsTheRoomOnItsDisk();
    void snapshotMovesTheLogIntoTheFile();

private:
    std::unique_ptr<SqliteStore> open() const { return m_folder->open(); }

    std::unique_ptr<StoreFolder> m_folder;
};

void TestSqliteStore::everythingOutlivesTheStore()
{
    const AlarmEvent full = stored(7);
    const AlarmEvent plain(8, {});
    AlarmEvent passedOver = stored(9);
    passedOver.snooze(Now + 1, Now);
    passedOver.waitOverSnooze(Now + 2, Now + 3);
    QVERIFY(open()->commit({{full, plain, passedOver}, {}, {{Now, 7, "due", "0 ms late"}}}));

    const auto store = open();
    const auto events = store->events();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events[0].cookie(), 7u);
    QVERIFY(events[0].wire() == full.wire());
    QVERIFY(events[0].standing() == full.standing());
    QVERIFY(events[1].wire() == plain.wire());
    QVERIFY(events[1].standing() == plain.standing());
    QVERIFY(events[2].standing() == passedOver.standing());
    QCOMPARE(events[2].standing().passedOver, std::optional(Snooze{Now, Now + 1}));
    QCOMPARE(store->journal(0), (QList<Wire::JournalEntry>{{Now, 7, "due", "0 ms late"}}));
}

void TestSqliteStore::newVersionTakesThePlaceOfTheOld()
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

void TestSqliteStore::lastCookieOutlivesItsEvent()
{
    QCOMPARE(open()->lastCookie(), 0u);
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(41), stored(42)}, {}, {}}));
        QVERIFY(store->commit({{}, {41, 42}, {}}));
    }
    QCOMPARE(open()->lastCookie(), 42u);
}

void TestSqliteStore::changeIsWrittenAsAWhole()
{
    const auto store = open();
    QVERIFY(store->commit({{stored(1)}, {}, {}}));
    QVERIFY(store->commit({{stored(2)}, {1}, {{Now, 2, "due", {}}}}));
    QCOMPARE(store->events().size(), 1);
    QCOMPARE(store->events()[0].cookie(), 2u);
    QCOMPARE(store->journal(0).size(), 1);
}

void TestSqliteStore::fullDiskFailsAndKeepsWhatIsStored()
{
    {
        const auto store = open();
        QVERIFY(store->commit({{stored(1)}, {}, {}}));
        {
            const Support::FullDisk full;
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

void TestSqliteStore::journalBeginsWhereAskedAndForgetsAfterAYear()
{
    QVERIFY(open()->commit(
        {{}, {}, {{Now - 400 * Day, 1, "due", {}}, {Now - Day, 1, "rang", {}}, {Now, 1, "answered", {}}}}));
    const auto store = open();
    QCOMPARE(store->journal(0).size(), 2);
    QCOMPARE(store->journal(Now - Day).size(), 2);
    QCOMPARE(store->journal(Now - Day + 1).size(), 1);
}

void TestSqliteStore::recordThatCannotBeReadDoesNotLoseTheOthers()
{
    QVERIFY(open()->commit({{stored(1), stored(2), stored(3)}, {}, {}}));
    {
        const auto database = Database::open(m_folder->path());
        QSqlQuery query((*database)->connection());
        QVERIFY(query.exec("UPDATE events SET event = '{\"ticker\":' WHERE cookie = 1"));
        QVERIFY(query.exec("UPDATE events SET state = 'ASLEEP' WHERE cookie = 2"));
    }
    const Support::LogCapture log;
    QCOMPARE(open()->events().size(), 1);
    QCOMPARE(log.lines(QtWarningMsg).size(), 2);
}

void TestSqliteStore::snapshotIsWantedAfterTenCommitsOrTenMinutesWithAny()
{
    const auto store = open();
    for (quint32 cookie = 1; cookie <= 10; ++cookie) {
        QVERIFY(!store->wantsSnapshot(Now));
        QVERIFY(store->commit({{stored(cookie)}, {}, {}}));
    }
    QVERIFY(store->wantsSnapshot(Now));
    store->waitForSnapshot();
    QFile::remove(m_folder->file(".snapshot"));
    store->takeSnapshot(Now);
    store->waitForSnapshot();
    QVERIFY(QFile::exists(m_folder->file(".snapshot")));
    QVERIFY(!QFile::exists(m_folder->file(".snapshot.new")));
    QVERIFY(!store->wantsSnapshot(Now + TenMinutes));

    QVERIFY(store->commit({{stored(11)}, {}, {}}));
    QVERIFY(!store->wantsSnapshot(Now + TenMinutes - 1));
    QVERIFY(store->wantsSnapshot(Now + TenMinutes));
    QVERIFY(store->wantsSnapshot(Now - TenMinutes));
}

void TestSqliteStore::snapshotKeepsNobodyWaiting()
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
    QVERIFY(begun < time.elapsed() / 2);
    QCOMPARE(store->facts().value("store_integrity").toString(), "ok");
}

void TestSqliteStore::knowsTheRoomOnItsDisk()
{
    QVERIFY(open()->facts().value("store_free").toLongLong() > 0);
}

void TestSqliteStore::snapshotMovesTheLogIntoTheFile()
{
    const auto store = open();
    store->waitForSnapshot();
    const QString path = store->facts().value("store_path").toString();
    const qint64 before = QFileInfo(path).size();
    Change change;
    for (quint32 cookie = 1; cookie <= 10000; ++cookie)
        change.put.append(stored(cookie));
    QVERIFY(store->commit(change));
    QVERIFY(store->commit(change));
    // More than SQLite leaves in the log by itself, and nobody who adds an alarm waits for that.
    QVERIFY(QFileInfo(path + "-wal").size() > Q_INT64_C(4096) * 1000);
    QCOMPARE(QFileInfo(path).size(), before);
    store->takeSnapshot(Now);
    store->waitForSnapshot();
    QVERIFY(QFileInfo(path).size() > before + 1000000);
}

QTEST_GUILESS_MAIN(TestSqliteStore)
#include "tst_sqlitestore.moc"
