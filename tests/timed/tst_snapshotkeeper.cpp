// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/snapshotkeeper.h"
#include "tests/support/logcapture.h"
#include "tests/timed/fakes.h"
#include "tests/timed/storefolder.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Astel::Timed;
using namespace std::chrono_literals;

namespace {

constexpr qint64 Minute = 60 * 1000;
constexpr SnapshotKeeper::Delays Delays{1ms, 5ms};

} // namespace

/** A real store; the keeper's delays are short, and the clock is in the test's hand. */
class TestSnapshotKeeper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tenChangesAreCopied();
    void aFewChangesWait();
    void oneChangeIsCopiedAfterAWhile();
    void aFailedSnapshotIsTriedAgainWithoutAnyChange();
    void aFailedSnapshotOfTheStartIsTriedAgain();

private:
    QString snapshot() const { return m_folder->file(".snapshot"); }
    /** A folder in its way lets every snapshot fail. */
    bool obstruct() const { return QDir().mkpath(snapshot() + ".new/full"); }
    bool clearTheWay() const { return QDir(snapshot() + ".new").removeRecursively(); }
    void commit(quint32 count);

    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<SqliteStore> m_store;
    FakeClock m_clock;
    quint32 m_cookie = 0;
};

void TestSnapshotKeeper::init()
{
    m_store.reset();
    m_folder = std::make_unique<StoreFolder>();
    m_store = m_folder->open();
    QVERIFY(m_store);
    m_store->waitForSnapshot();
    QVERIFY(QFile::remove(snapshot()));
    m_clock.time = Now;
}

void TestSnapshotKeeper::commit(quint32 count)
{
    for (quint32 i = 0; i < count; ++i)
        QVERIFY(m_store->commit({{stored(++m_cookie)}, {}, {}}));
}

void TestSnapshotKeeper::tenChangesAreCopied()
{
    SnapshotKeeper keeper(*m_store, m_clock, Delays);
    commit(10);
    keeper.follow();
    QTRY_VERIFY(QFile::exists(snapshot()));
    QTRY_VERIFY(!m_store->isAheadOfSnapshot());
}

void TestSnapshotKeeper::aFewChangesWait()
{
    SnapshotKeeper keeper(*m_store, m_clock, Delays);
    commit(9);
    keeper.follow();
    m_clock.time += 10 * Minute - 1;
    // A keeper that took one for these would have done so before this change is copied.
    QVERIFY(!m_store->wantsSnapshot(m_clock.time));
    QVERIFY(m_store->isAheadOfSnapshot());
    commit(1);
    keeper.follow();
    QTRY_VERIFY(QFile::exists(snapshot()));
}

void TestSnapshotKeeper::oneChangeIsCopiedAfterAWhile()
{
    SnapshotKeeper keeper(*m_store, m_clock, Delays);
    commit(1);
    keeper.follow();
    m_clock.time += 10 * Minute;
    QTRY_VERIFY(QFile::exists(snapshot()));
    QTRY_VERIFY(!m_store->isAheadOfSnapshot());
}

void TestSnapshotKeeper::aFailedSnapshotIsTriedAgainWithoutAnyChange()
{
    const Support::LogCapture log;
    const auto failures = [&] { return log.lines(QtWarningMsg).filter("no snapshot").size(); };
    QVERIFY(obstruct());
    SnapshotKeeper keeper(*m_store, m_clock, Delays);
    commit(10);
    keeper.follow();
    QTRY_COMPARE(failures(), 1);
    QVERIFY(m_store->isAheadOfSnapshot());
    QVERIFY(!m_store->wantsSnapshot(m_clock.time + 10 * Minute - 1));

    m_clock.time += 10 * Minute;
    QTRY_COMPARE(failures(), 2);
    QVERIFY(clearTheWay());
    m_clock.time += 10 * Minute;
    QTRY_VERIFY(QFile::exists(snapshot()));
    QTRY_VERIFY(!m_store->isAheadOfSnapshot());
    QCOMPARE(failures(), 2);
}

void TestSnapshotKeeper::aFailedSnapshotOfTheStartIsTriedAgain()
{
    m_store.reset();
    QVERIFY(obstruct());
    m_store = m_folder->open();
    m_store->waitForSnapshot();
    QVERIFY(m_store->isAheadOfSnapshot());
    QVERIFY(clearTheWay());
    const SnapshotKeeper keeper(*m_store, m_clock, Delays);
    m_clock.time += 10 * Minute;
    QTRY_VERIFY(QFile::exists(snapshot()));
    QTRY_VERIFY(!m_store->isAheadOfSnapshot());
}

QTEST_GUILESS_MAIN(TestSnapshotKeeper)
#include "tst_snapshotkeeper.moc"
