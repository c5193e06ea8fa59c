// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rtc/wakealarm.h"
#include "tests/support/places.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

namespace {

constexpr long long Now = 1795150800;

} // namespace

/** The alarm of a hardware clock, with a folder of plain files in its place. */
class TestWakeAlarm : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void deviceTurnsOnTwoMinutesBefore_data();
    void deviceTurnsOnTwoMinutesBefore();
    void clockWithAnotherTimeGetsItsOwn_data();
    void clockWithAnotherTimeGetsItsOwn();
    void alarmBeforeIsClearedFirst();
    void missingClockIsAFailure();
    void programSetsTheNextMoment();
    void programWritesNothingWithoutAMoment();
    void programRefusesOtherArguments();

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    void write(const char *name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    QByteArray alarm() const
    {
        QFile file(path("wakealarm"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static int run(const QStringList &arguments) { return QProcess::execute(Places::program("clock-rtc"), arguments); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestWakeAlarm::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    write("wakealarm", "");
}

void TestWakeAlarm::deviceTurnsOnTwoMinutesBefore_data()
{
    QTest::addColumn<qint64>("moment");
    QTest::addColumn<qint64>("wake");

    QTest::newRow("hours ahead") << qint64(Now + 7200) << qint64(Now + 7080);
    QTest::newRow("three minutes ahead") << qint64(Now + 180) << qint64(Now + 60);
    QTest::newRow("two minutes ahead: never earlier than a minute from now") << qint64(Now + 120) << qint64(Now + 60);
    QTest::newRow("a second ahead") << qint64(Now + 1) << qint64(Now + 60);
}

void TestWakeAlarm::deviceTurnsOnTwoMinutesBefore()
{
    QFETCH(qint64, moment);
    QFETCH(qint64, wake);

    QCOMPARE(qint64(Rtc::wakeTime(moment, Now)), wake);
}

void TestWakeAlarm::clockWithAnotherTimeGetsItsOwn_data()
{
    QTest::addColumn<QByteArray>("ownTime");
    QTest::addColumn<qint64>("written");

    QTest::newRow("same time") << QByteArray::number(Now) << qint64(Now + 7080);
    QTest::newRow("a little slow") << QByteArray::number(Now - 3) << qint64(Now + 7080);
    QTest::newRow("local time") << QByteArray::number(Now + 3600) << qint64(Now + 10680);
    QTest::newRow("never set") << QByteArray::number(5000) << qint64(12080);
    QTest::newRow("does not tell") << QByteArray() << qint64(Now + 7080);
}

void TestWakeAlarm::clockWithAnotherTimeGetsItsOwn()
{
    QFETCH(QByteArray, ownTime);
    QFETCH(qint64, written);

    write("since_epoch", ownTime);
    QVERIFY(Rtc::setWakeAlarm(m_folder->path().toStdString(), Now + 7080, Now));
    QCOMPARE(alarm(), QByteArray::number(written) + '\n');
}

void TestWakeAlarm::alarmBeforeIsClearedFirst()
{
    // A pipe keeps what was written, one after the other.
    QFile::remove(path("wakealarm"));
    QProcess reader;
    QCOMPARE(QProcess::execute("mkfifo", {path("wakealarm")}), 0);
    reader.start("cat", {path("wakealarm")});
    QVERIFY(reader.waitForStarted());
    QFile holder(path("wakealarm"));
    QVERIFY(holder.open(QIODevice::WriteOnly));
    QVERIFY(Rtc::setWakeAlarm(m_folder->path().toStdString(), Now, Now));
    holder.close();
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.readAllStandardOutput(), "0\n" + QByteArray::number(Now) + '\n');
}

void TestWakeAlarm::missingClockIsAFailure()
{
    QVERIFY(!Rtc::setWakeAlarm("/nonexistent/clock", Now + 7080, Now));
}

void TestWakeAlarm::programSetsTheNextMoment()
{
    QTemporaryDir moments;
    QFile file(moments.filePath(QString::number(getuid())));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const qint64 moment = QDateTime::currentSecsSinceEpoch() + 7200;
    file.write(QByteArray::number(moment) + '\n');
    file.close();
    QCOMPARE(run({"--moments", moments.path(), "--rtc", m_folder->path()}), 0);
    QCOMPARE(alarm(), QByteArray::number(moment - 120) + '\n');
    QCOMPARE(run({"--moments", moments.path(), "--rtc", "/nonexistent/clock"}), 1);
}

void TestWakeAlarm::programWritesNothingWithoutAMoment()
{
    const QTemporaryDir moments;
    write("wakealarm", "1795000000\n");
    QCOMPARE(run({"--moments", moments.path(), "--rtc", m_folder->path()}), 0);
    QCOMPARE(alarm(), QByteArray("1795000000\n"));
}

void TestWakeAlarm::programRefusesOtherArguments()
{
    QCOMPARE(run({"--rtc"}), 2);
    QCOMPARE(run({"--frobnicate", "yes"}), 2);
    QCOMPARE(alarm(), QByteArray());
}

QTEST_GUILESS_MAIN(TestWakeAlarm)
#include "tst_wakealarm.moc"
