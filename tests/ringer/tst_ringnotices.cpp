// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/notices/ringnotices.h"

#include "platform/notices/noticerecord.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/timedclient/wire.h"
#include "tests/support/fulldisk.h"
#include "tests/support/logcapture.h"
#include "tests/timed/fakes.h"

#include <QSignalSpy>
#include <QTest>

using Ringer::RingNotice;
using Ringer::RingNotices;

namespace {

RingNotice teaTime(quint32 cookie, int snoozeSeconds = 600)
{
    return {cookie, QStringLiteral("Tea"), QDateTime::currentDateTimeUtc(), snoozeSeconds};
}

} // namespace

/** Alarms that ring, as notifications. */
class TestRingNotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { RingTexts::install(); }
    void offersTheAnswersOfTheAlarm();
    void showsAnAlarmOnce();
    void whoeverComesIsGivenAllThatRings_data();
    void whoeverComesIsGivenAllThatRings();
    void anAnswerIsForItsOwnAlarm();
    void closesWhatItShowsInTheEnd();
    void theSnoozeIsTheButtonsOrTheTimeouts_data();
    void theSnoozeIsTheButtonsOrTheTimeouts();
    void aFullDiskLeavesTheRecordOfBefore();
    void aRecordOutlivesItsProgram();
};

void TestRingNotices::offersTheAnswersOfTheAlarm()
{
    FakeNotifier notifier;
    RingNotices notices(&notifier);
    notices.show(teaTime(7));
    notices.show(teaTime(8, 0));
    QCOMPARE(notifier.notices[0].summary, "Tea");
    QVERIFY(notifier.notices[0].isRinging);
    QCOMPARE(notifier.notices[0].actions.size(), 2);
    QCOMPARE(notifier.notices[0].actions[0].label, "Snooze · 10 min");
    QCOMPARE(notifier.notices[0].actions[1].label, "Stop");
    QCOMPARE(notifier.notices[1].actions.size(), 1);
}

void TestRingNotices::showsAnAlarmOnce()
{
    FakeNotifier notifier;
    RingNotices notices(&notifier);
    notices.show(teaTime(7));
    notices.show(teaTime(7));
    notifier.answer(true);
    notices.show(teaTime(7));
    QCOMPARE(notifier.notices.size(), 1);
}

void TestRingNotices::whoeverComesIsGivenAllThatRings_data()
{
    QTest::addColumn<bool>("wasShown");
    QTest::newRow("after one that ended") << true;
    QTest::newRow("where there was nobody") << false;
}

void TestRingNotices::whoeverComesIsGivenAllThatRings()
{
    QFETCH(bool, wasShown);
    FakeNotifier notifier;
    RingNotices notices(&notifier);
    notices.show(teaTime(7));
    notices.show(teaTime(8));
    notifier.answer(wasShown);
    notices.close(8);
    emit notifier.appeared();
    QCOMPARE(notifier.notices.size(), 3);
    QCOMPARE(notifier.notices[2].tag, notifier.notices[0].tag);
}

void TestRingNotices::anAnswerIsForItsOwnAlarm()
{
    FakeNotifier notifier;
    RingNotices notices(&notifier);
    QSignalSpy snoozed(&notices, &RingNotices::snoozeChosen);
    QSignalSpy stopped(&notices, &RingNotices::stopChosen);
    notices.show(teaTime(7));
    notices.show(teaTime(8, 300));
    emit notifier.chosen(notifier.notices[1].actions[0].key);
    emit notifier.chosen(notifier.notices[0].actions[1].key);
    QCOMPARE(snoozed, QList<QVariantList>({{8u, 300}}));
    QCOMPARE(stopped, QList<QVariantList>({{7u}}));
    notices.close(8);
    for (const auto &key : {notifier.notices[1].actions[0].key, QStringLiteral("default"),
                            QStringLiteral("com.astel.ringer.stop.9"), QStringLiteral("com.astel.ringer.stop.")})
        emit notifier.chosen(key);
    QCOMPARE(snoozed.size() + stopped.size(), 2);
}

void TestRingNotices::closesWhatItShowsInTheEnd()
{
    FakeNotifier notifier;
    {
        RingNotices notices(&notifier);
        notices.show(teaTime(7));
        notices.show(teaTime(8));
        notices.close(7);
        notices.close(7);
        QCOMPARE(notifier.closed, QStringList(notifier.notices[0].tag));
    }
    QCOMPARE(notifier.closed, QStringList({notifier.notices[0].tag, notifier.notices[1].tag}));
}

void TestRingNotices::theSnoozeIsTheButtonsOrTheTimeouts_data()
{
    QTest::addColumn<QList<Astel::Timed::Wire::Button>>("buttons");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("seconds");
    using Buttons = QList<Astel::Timed::Wire::Button>;
    QTest::newRow("the first button that snoozes") << Buttons{{0, {}}, {600, {}}, {900, {}}} << 300 << 600;
    QTest::newRow("the timeout") << Buttons{{0, {}}} << 300 << 300;
    QTest::newRow("none") << Buttons() << 0 << 0;
    QTest::newRow("a timeout that is none") << Buttons() << -5 << 0;
}

void TestRingNotices::theSnoozeIsTheButtonsOrTheTimeouts()
{
    QFETCH(QList<Astel::Timed::Wire::Button>, buttons);
    QFETCH(int, timeout);
    Astel::Timed::Wire::Event event;
    event.buttons = buttons;
    event.timeoutSnooze = timeout;
    QTEST(Ringer::ringNoticeOf(7, event, 0).snoozeSeconds, "seconds");
}

void TestRingNotices::aFullDiskLeavesTheRecordOfBefore()
{
    Notices::NoticeRecord("full").add(":1.5", 12);
    {
        const Support::LogCapture log;
        const Support::FullDisk full;
        Notices::NoticeRecord("full").add(":1.6", 13);
        QCOMPARE(log.lines(QtWarningMsg).size(), 1);
    }
    const Notices::NoticeRecord record("full");
    QCOMPARE(record.entries().size(), 1);
    QCOMPARE(record.entries()[0].number, 12u);
}

void TestRingNotices::aRecordOutlivesItsProgram()
{
    {
        Notices::NoticeRecord record("test");
        QVERIFY(record.entries().isEmpty());
        record.add(":1.5", 12);
        record.add(":1.6", 13);
        record.remove(12);
        record.remove(99);
    }
    Notices::NoticeRecord record("test");
    QCOMPARE(record.entries().size(), 1);
    QCOMPARE(record.entries()[0].server, ":1.6");
    QCOMPARE(record.entries()[0].number, 13u);
    record.clear();
    QVERIFY(Notices::NoticeRecord("test").entries().isEmpty());
}

QTEST_GUILESS_MAIN(TestRingNotices)
#include "tst_ringnotices.moc"
