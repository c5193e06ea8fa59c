// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/sqlitestore.h"
#include "tests/timed/world.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Astel::Timed;

namespace {

const qint64 Now = utc("2026-11-20T05:00:00");
constexpr qint64 Year = 366 * Day;

Miss miss(qint64 due, bool told)
{
    return {7, due, due + Hour, MissReason::Slept, told, daily(7, 0)};
}

} // namespace

/** The past as the store keeps it. */
class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void journalIsKeptForAYear();
    void journalForgetsOnlyOnceADay();
    void startForgetsToo();
    void clockThatJumpsByYearsForgetsNothing();
    void missIsKeptUntilToldAndAWeekLonger();

private:
    void open(qint64 now)
    {
        m_store.reset();
        m_store = std::move(*SqliteStore::create(m_folder->path(), now));
    }
    void note(qint64 moment) const { QVERIFY(m_store->commit({{}, {}, {{moment, 7, "due", ""}}})); }
    QList<qint64> moments() const
    {
        QList<qint64> result;
        const auto journal = m_store->journal(0);
        for (const Wire::JournalEntry &entry : journal)
            result.append(entry.moment);
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SqliteStore> m_store;
};

void TestHistory::init()
{
    m_store.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    open(Now);
}

void TestHistory::journalIsKeptForAYear()
{
    note(Now);
    note(Now + Hour);
    note(Now + Year / 2);
    note(Now + Year);
    QCOMPARE(moments().size(), 4);
    note(Now + Year + Day);
    QCOMPARE(moments(), (QList<qint64>{Now + Year / 2, Now + Year, Now + Year + Day}));
}

void TestHistory::journalForgetsOnlyOnceADay()
{
    note(Now);
    note(Now + Year - Hour);
    note(Now + Year + Hour);
    QCOMPARE(moments().size(), 3);
    note(Now + Year + Day);
    QCOMPARE(moments().size(), 3);
}

void TestHistory::startForgetsToo()
{
    note(Now);
    note(Now + Year / 2);
    open(Now + Year + 1);
    QCOMPARE(moments(), QList<qint64>{Now + Year / 2});
}

void TestHistory::clockThatJumpsByYearsForgetsNothing()
{
    note(Now);
    note(Now + 56 * Year);
    QCOMPARE(moments().size(), 2);
    // Neither does a start, whichever way the clock jumped meanwhile.
    open(0);
    open(Now + 60 * Year);
    QCOMPARE(moments().size(), 2);
}

void TestHistory::missIsKeptUntilToldAndAWeekLonger()
{
    QVERIFY(m_store->commit({{}, {}, {{Now, 7, "missed", ""}}, {miss(Now, false), miss(Now + Hour, false)}}));
    QVERIFY(m_store->commit({{}, {}, {}, {miss(Now, true)}}));
    open(Now + 6 * Day);
    QCOMPARE(m_store->missed(), (QList<Miss>{miss(Now, true), miss(Now + Hour, false)}));
    note(Now + 8 * Day);
    open(Now + 8 * Day);
    QCOMPARE(m_store->missed(), QList<Miss>{miss(Now + Hour, false)});
}

QTEST_GUILESS_MAIN(TestHistory)
#include "tst_history.moc"
