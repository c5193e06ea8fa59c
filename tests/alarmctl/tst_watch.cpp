// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmctl/alarmctl.h"
#include "tests/support/privatebus.h"

#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {

constexpr int MaximalOutput = 100000;

/**
 * Nothing tells from outside when it has begun to follow, so there are changes until it shows one. Returns the cookie
 * of the alarm that is left.
 */
QByteArray changeUntilSeen(QProcess &process)
{
    QByteArray cookie;
    const auto isSeen = [&] {
        if (!cookie.isEmpty())
            alarmctl("remove " + cookie);
        cookie = alarmctl("add 12:00").output.trimmed().toUtf8();
        return process.bytesAvailable() > 0;
    };
    return QTest::qWaitFor(isSeen) ? cookie : QByteArray();
}

} // namespace

class TestWatch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void printsALineForEachChange();
    void printsNothingForADaemonThatIsBack();
    void tellsMomentsInWords();
    void endsWithTheBus();

private:
    /** Starts watching, and returns when changes are seen. */
    void watch(QProcess &process, const QStringList &options);

    std::unique_ptr<Support::PrivateBus> m_bus;
    Support::TimedProcess m_daemon;
};

void TestWatch::initTestCase()
{
    m_bus = std::make_unique<Support::PrivateBus>();
    QVERIFY(m_bus->isRunning());
    QVERIFY(m_daemon.start());
}

void TestWatch::watch(QProcess &process, const QStringList &options)
{
    process.start(alarmctlPath(), QStringList("watch") + options);
    QVERIFY(process.waitForStarted());
    const QByteArray cookie = changeUntilSeen(process);
    QTRY_VERIFY(process.peek(MaximalOutput).contains('"' + cookie + "\":"));
    QCOMPARE(alarmctl("remove " + cookie).exitCode, 0);
    QTRY_VERIFY(process.peek(MaximalOutput).endsWith("{}\n"));
    process.readAllStandardOutput();
}

void TestWatch::printsALineForEachChange()
{
    QProcess process;
    watch(process, {"--json"});
    const Run first = alarmctl("add 12:00");
    const Run second = alarmctl("add 13:00 --days daily");
    QVERIFY(alarmctl("add 14:00 --off").exitCode == 0);
    const Run edited = alarmctl("edit " + first.output.trimmed().toUtf8() + " --title Other");
    QCOMPARE(alarmctl("remove " + second.output.toUtf8()).exitCode, 0);
    const QString a = first.output.trimmed();
    const QString b = second.output.trimmed();
    const QString c = edited.output.trimmed();
    const QList<QStringList> keys{{a}, {a, b}, {c, b}, {c}};
    QTRY_COMPARE(process.peek(MaximalOutput).count('\n'), 4);
    for (QStringList wanted : keys) {
        wanted.sort();
        QCOMPARE(QJsonDocument::fromJson(process.readLine()).object().keys(), wanted);
    }
    QCOMPARE(alarmctl("remove " + c.toUtf8()).exitCode, 0);
    process.kill();
    process.waitForFinished();
}

void TestWatch::printsNothingForADaemonThatIsBack()
{
    QProcess process;
    watch(process, {"--json"});
    const QString kept = alarmctl("add 12:00").output.trimmed();
    QTRY_COMPARE(process.peek(MaximalOutput).count('\n'), 1);
    process.readAllStandardOutput();
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    // The answer to this comes after the daemon was read again, or with it.
    const QString added = alarmctl("add 13:00").output.trimmed();
    QTRY_VERIFY(process.peek(MaximalOutput).contains('"' + added.toUtf8() + "\":"));
    QCOMPARE(process.peek(MaximalOutput).count('\n'), 1);
    QVERIFY(process.peek(MaximalOutput).contains('"' + kept.toUtf8() + "\":"));
    QCOMPARE(alarmctl("remove " + kept.toUtf8() + ' ' + added.toUtf8()).exitCode, 0);
    process.kill();
    process.waitForFinished();
}

void TestWatch::tellsMomentsInWords()
{
    QProcess process;
    process.start(alarmctlPath(), {"watch"});
    QVERIFY(process.waitForStarted());
    const QByteArray cookie = changeUntilSeen(process);
    const QRegularExpression line("^[0-9]+ [0-9-]{10} 12:00:00(, |$)", QRegularExpression::MultilineOption);
    QTRY_VERIFY(QString(process.peek(MaximalOutput)).contains(line));
    QCOMPARE(alarmctl("remove " + cookie).exitCode, 0);
    process.kill();
    process.waitForFinished();
}

// Last, as there is no bus afterwards.
void TestWatch::endsWithTheBus()
{
    QProcess process;
    watch(process, {"--json"});
    m_daemon.terminate();
    m_bus.reset();
    QTRY_COMPARE(process.state(), QProcess::NotRunning);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(), "alarmctl: the session bus is gone\n");
}

QTEST_GUILESS_MAIN(TestWatch)
#include "tst_watch.moc"
