// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"
#include "platform/timed/sqlitestore.h"
#include "tests/support/logcapture.h"

#include <csignal>
#include <QDir>
#include <QSqlQuery>
#include <QTemporaryDir>
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
    void snapshotIsWantedAfterTenCommits();

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

    std::unique_ptr<QTemporaryDir> m_home;
};

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
        store->takeSnapshot();
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

void tst_SqliteStore::snapshotIsWantedAfterTenCommits()
{
    const auto store = open();
    for (quint32 cookie = 1; cookie <= 10; ++cookie) {
        QVERIFY(!store->wantsSnapshot());
        QVERIFY(store->commit({{stored(cookie)}, {}, {}}));
    }
    QVERIFY(store->wantsSnapshot());
    QFile::remove(file(".snapshot"));
    store->takeSnapshot();
    QVERIFY(QFile::exists(file(".snapshot")));
    QVERIFY(!store->wantsSnapshot());
}

QTEST_GUILESS_MAIN(tst_SqliteStore)
#include "tst_sqlitestore.moc"
