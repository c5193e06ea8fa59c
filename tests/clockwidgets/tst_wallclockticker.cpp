// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/wallclockticker_p.h"

#include <cstdio>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestWallClockTicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beatsOnWholeSecondsAndMinutes_data();
    void beatsOnWholeSecondsAndMinutes();
    void isOnTime();
    void isSilentWhenStopped();
    void startsAgain();
    void tellsThatTheZoneIsAnother_data();
    void tellsThatTheZoneIsAnother();
};

void TestWallClockTicker::beatsOnWholeSecondsAndMinutes_data()
{
    QTest::addColumn<ClockTicker::Beat>("beat");
    QTest::addColumn<qint64>("time");
    QTest::addColumn<qint64>("next");
    using Beat = ClockTicker::Beat;
    QTest::newRow("second") << Beat::Second << qint64(1774699200) << qint64(1774699201);
    QTest::newRow("whole minute") << Beat::Minute << qint64(1774699200) << qint64(1774699260);
    QTest::newRow("after the minute") << Beat::Minute << qint64(1774699201) << qint64(1774699260);
    QTest::newRow("before the minute") << Beat::Minute << qint64(1774699259) << qint64(1774699260);
}

void TestWallClockTicker::beatsOnWholeSecondsAndMinutes()
{
    QFETCH(ClockTicker::Beat, beat);
    QFETCH(qint64, time);
    QFETCH(qint64, next);
    QCOMPARE(qint64(WallClockTicker::nextBeat(time, beat)), next);
}

void TestWallClockTicker::isOnTime()
{
    WallClockTicker ticker;
    QList<int> late;
    connect(&ticker, &ClockTicker::ticked, this, [&] { late << ticker.now().time().msec(); });
    ticker.start(ClockTicker::Beat::Second);
    QTRY_COMPARE(late.size(), 2);
    // A machine under load wakes late, but no timer of ours is early: that would be near 999.
    for (const int milliseconds : late)
        QVERIFY2(milliseconds < 500, qPrintable(QString::number(milliseconds)));
}

void TestWallClockTicker::isSilentWhenStopped()
{
    WallClockTicker ticker;
    QSignalSpy spy(&ticker, &ClockTicker::ticked);
    ticker.start(ClockTicker::Beat::Second);
    ticker.stop();
    QVERIFY(!spy.wait(1100));
}

void TestWallClockTicker::startsAgain()
{
    WallClockTicker ticker;
    QSignalSpy spy(&ticker, &ClockTicker::ticked);
    ticker.start(ClockTicker::Beat::Minute);
    ticker.start(ClockTicker::Beat::Second);
    QVERIFY(spy.wait(1500));
    ticker.stop();
    ticker.start(ClockTicker::Beat::Second);
    QVERIFY(spy.wait(1500));
}

void TestWallClockTicker::tellsThatTheZoneIsAnother_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("link replaced") << true;
    QTest::newRow("copy written over") << false;
}

void TestWallClockTicker::tellsThatTheZoneIsAnother()
{
    QFETCH(bool, isLink);
    const QTemporaryDir folder;
    const QString localtime = folder.filePath("localtime");
    QVERIFY(isLink ? QFile::link("/usr/share/zoneinfo/Europe/Berlin", localtime)
                   : QFile::copy("/usr/share/zoneinfo/Europe/Berlin", localtime));
    WallClockTicker ticker(localtime);
    ticker.start(ClockTicker::Beat::Minute);
    QSignalSpy spy(&ticker, &ClockTicker::ticked);
    if (isLink) {
        const QTemporaryDir other;
        QVERIFY(QFile::link("/usr/share/zoneinfo/Asia/Tokyo", other.filePath("new")));
        QCOMPARE(std::rename(qPrintable(other.filePath("new")), qPrintable(localtime)), 0);
    } else {
        QFile copy(localtime);
        QVERIFY(copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && copy.open(QIODevice::WriteOnly));
        copy.write("TZif");
    }
    QVERIFY(spy.wait());
}

QTEST_GUILESS_MAIN(TestWallClockTicker)
#include "tst_wallclockticker.moc"
