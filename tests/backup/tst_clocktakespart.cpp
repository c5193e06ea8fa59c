// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/household.h"
#include "tests/support/alarms.h"
#include "tests/support/places.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {

/** The calls to whoever takes part, as anybody on the bus can see them. */
class Monitor
{
public:
    Monitor() { m_process.start("dbus-monitor", {"--session", "interface='com.korvo.backupclient'"}); }
    ~Monitor()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /** Waits until it watches. */
    bool isWatching()
    {
        return QTest::qWaitFor([this] { return seen().contains("NameLost"); });
    }
    /** "com.korvo.clock.Backup /backupclient backupStarts" and so on, in their order. */
    QStringList calls()
    {
        static const QRegularExpression call(
            "method call .*destination=(\\S+) .*path=([^;]+); interface=com\\.korvo\\.backupclient; member=(\\w+)");
        QStringList found;
        auto each = call.globalMatch(seen());
        while (each.hasNext())
            found.append(each.next().capturedTexts().mid(1).join(' '));
        return found;
    }

private:
    QString seen()
    {
        m_seen += QString::fromUtf8(m_process.readAllStandardOutput());
        return m_seen;
    }

    QProcess m_process;
    QString m_seen;
};

} // namespace

/** The real clock, with its window, while the real command makes a backup and restores it. */
class TestClockTakesPart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theFourCallsComeInTheirOrder();

private:
    Household m_household;
};

void TestClockTakesPart::initTestCase()
{
    QVERIFY(m_household.start());
}

void TestClockTakesPart::theFourCallsComeInTheirOrder()
{
    QVERIFY(Support::addAlarm(QTime(7, 30), "Work"));
    const auto records = Household::records();
    QProcess clock;
    clock.setProcessChannelMode(QProcess::MergedChannels);
    clock.start(Places::program("clock"), QStringList());
    QVERIFY(Support::PrivateBus::waitForService("com.korvo.clock.Backup", true, 30000));
    Monitor monitor;
    QVERIFY(monitor.isWatching());

    const Support::Run created = m_household.backUp({"create", m_household.file()});
    QCOMPARE(created.errors, "clock-backup: the tone /nowhere/tone.aac is not in the backup: there is no such file\n");
    QCOMPARE(created.exitCode, 0);
    QCOMPARE(m_household.backUp({"restore", m_household.file()}).exitCode, 0);

    const QString to = "com.korvo.clock.Backup /backupclient ";
    const QStringList expected{to + "backupStarts", to + "backupFinished", to + "restoreStarts",
                               to + "restoreFinished"};
    QTRY_COMPARE(monitor.calls(), expected);
    QCOMPARE(Household::records(), records);

    clock.terminate();
    QVERIFY(clock.waitForFinished());
    QString logged;
    for (const QString &line : QString::fromUtf8(clock.readAll()).split('\n')) {
        if (line.contains("backup") || line.contains("restore"))
            logged += line.trimmed() + '\n';
    }
    QCOMPARE(logged, "backupStarts\nbackupFinished\nrestoreStarts\nrestoreFinished\n");
}

QTEST_GUILESS_MAIN(TestClockTakesPart)
#include "tst_clocktakespart.moc"
