// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/timerfdwaketimer.h"

#include <cerrno>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/timerfd.h>
#include <utility>

using namespace Astel::Timed;

namespace {

bool clockWasSet = false;

/** Answers as the system does when the clock was set since the last call: armed all the same, and told once. */
int setTime(int descriptor, int flags, const itimerspec *wanted, itimerspec *before)
{
    const int result = timerfd_settime(descriptor, flags, wanted, before);
    if (!std::exchange(clockWasSet, false))
        return result;
    errno = ECANCELED;
    return -1;
}

} // namespace

class TestTimerFdWakeTimer : public QObject
{
    Q_OBJECT

private slots:
    void armedMomentIsReadBack();
    void unarmedTimerSaysSo();
    void expiresAtItsMomentAndNotBefore();
    void momentThatPassedExpiresAtOnce();
    void tellsOfAClockThatWasSetBeforeItIsArmed();
    void wakesWithTheRightAndAClockThatCan_data();
    void wakesWithTheRightAndAClockThatCan();
};

void TestTimerFdWakeTimer::armedMomentIsReadBack()
{
    TimerFdWakeTimer timer;
    const qint64 moment = QDateTime::currentMSecsSinceEpoch() + 3600000;
    timer.arm(moment);
    QVERIFY(timer.armedFor());
    QVERIFY(std::abs(*timer.armedFor() - moment) <= 2);
}

void TestTimerFdWakeTimer::unarmedTimerSaysSo()
{
    TimerFdWakeTimer timer;
    QVERIFY(!timer.armedFor());
    timer.arm(QDateTime::currentMSecsSinceEpoch() + 3600000);
    timer.arm(std::nullopt);
    QVERIFY(!timer.armedFor());
}

void TestTimerFdWakeTimer::expiresAtItsMomentAndNotBefore()
{
    TimerFdWakeTimer timer;
    const QSignalSpy expired(&timer, &WakeTimer::expired);
    const qint64 moment = QDateTime::currentMSecsSinceEpoch() + 300;
    timer.arm(moment);
    QTRY_COMPARE(expired.size(), 1);
    QVERIFY(QDateTime::currentMSecsSinceEpoch() >= moment);
    QVERIFY(!timer.armedFor());
}

void TestTimerFdWakeTimer::momentThatPassedExpiresAtOnce()
{
    TimerFdWakeTimer timer;
    const QSignalSpy expired(&timer, &WakeTimer::expired);
    timer.arm(-5);
    QTRY_COMPARE(expired.size(), 1);
}

void TestTimerFdWakeTimer::tellsOfAClockThatWasSetBeforeItIsArmed()
{
    TimerFdWakeTimer timer("/sys/class/rtc", setTime);
    const QSignalSpy clockSet(&timer, &WakeTimer::clockSet);
    const QSignalSpy expired(&timer, &WakeTimer::expired);
    timer.arm(QDateTime::currentMSecsSinceEpoch() + 3600000);
    clockWasSet = true;
    timer.arm(QDateTime::currentMSecsSinceEpoch() + 100);
    QVERIFY(clockSet.isEmpty());
    QTRY_COMPARE(expired.size(), 1);
    QCOMPARE(clockSet.size(), 1);
}

void TestTimerFdWakeTimer::wakesWithTheRightAndAClockThatCan_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("wakeup");
    QTest::addColumn<bool>("isAble");

    QTest::newRow("no clock") << QStringList() << QByteArray() << false;
    QTest::newRow("one without an alarm") << QStringList{"rtc0/time"} << QByteArray() << false;
    QTest::newRow("one with an alarm") << QStringList{"rtc0/wakealarm"} << QByteArray() << true;
    QTest::newRow("the second one") << QStringList{"rtc0/time", "rtc1/wakealarm"} << QByteArray() << true;
    QTest::newRow("told to wake") << QStringList{"rtc0/wakealarm"} << QByteArray("enabled\n") << true;
    QTest::newRow("told not to wake") << QStringList{"rtc0/wakealarm"} << QByteArray("disabled\n") << false;
}

void TestTimerFdWakeTimer::wakesWithTheRightAndAClockThatCan()
{
    QFETCH(QStringList, files);
    QFETCH(QByteArray, wakeup);
    QFETCH(bool, isAble);
    const QTemporaryDir clocks;
    const auto write = [&clocks](const QString &name, const QByteArray &content) {
        QFile file(clocks.filePath(name));
        return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly)
            && file.write(content) == content.size();
    };
    for (const QString &name : std::as_const(files))
        QVERIFY(write(name, {}));
    if (!wakeup.isEmpty())
        QVERIFY(write("rtc0/device/power/wakeup", wakeup));

    const TimerFdWakeTimer timer(clocks.path());
    const bool isGranted = timer.kind() == "CLOCK_REALTIME_ALARM";
    QCOMPARE(timer.wakesFromSleep(), isGranted && isAble);
    QCOMPARE(timer.reason().isEmpty(), timer.wakesFromSleep());
    if (isGranted && !isAble)
        QCOMPARE(timer.reason(), "no hardware clock can wake the device");
}

QTEST_GUILESS_MAIN(TestTimerFdWakeTimer)
#include "tst_timerfdwaketimer.moc"
