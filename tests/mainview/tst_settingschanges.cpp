// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainview/mashuppage.h"
#include "platform/toolkit/applicationwindow.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <cstdio>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

/** The page beside the real daemon, whose time zone is changed. */
class TestSettingsChanges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anotherZoneReadsTheAlarmsOnce();
    void afterTheDaemonWasAwayItsChangesAreHeardAgain();

private:
    bool moveTo(const QString &zone);
    static qsizetype readings(const Support::LogCapture &log)
    {
        return log.lines().filter("AlarmsWidget::updateContent() exited").size();
    }

    QTemporaryDir m_folder;
    Support::PrivateBus m_bus;
    std::unique_ptr<Support::TimedProcess> m_daemon;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_page;
};

bool TestSettingsChanges::moveTo(const QString &zone)
{
    const QString link = m_folder.filePath("localtime");
    return QFile::link("/usr/share/zoneinfo/" + zone, link + ".new")
        && std::rename(qPrintable(link + ".new"), qPrintable(link)) == 0;
}

void TestSettingsChanges::initTestCase()
{
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    QVERIFY(moveTo("Europe/Berlin"));
    // It would win over the file.
    qunsetenv("TZ");
    m_daemon
        = std::make_unique<Support::TimedProcess>(QStringList("TIMED_LOCALTIME=" + m_folder.filePath("localtime")));
    QVERIFY(m_daemon->start());
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->show();
    m_page = std::make_unique<MashupPage>();
    m_page->appear(m_window.get());
    QVERIFY(Support::waitForChanges());
}

void TestSettingsChanges::anotherZoneReadsTheAlarmsOnce()
{
    const Support::LogCapture log;
    QVERIFY(moveTo("America/New_York"));
    QTRY_COMPARE(readings(log), 1);
    // What comes after it is heard after it: there was no second one in between.
    const quint32 cookie = Support::addSwitchedOffAlarm(QTime(5, 0));
    QVERIFY(cookie > 0);
    QVERIFY(moveTo("Asia/Tokyo"));
    QTRY_COMPARE(readings(log), 2);
}

void TestSettingsChanges::afterTheDaemonWasAwayItsChangesAreHeardAgain()
{
    m_daemon->kill();
    const Support::LogCapture log;
    QVERIFY(m_daemon->start());
    // It is read when the triggers are there again.
    QTRY_COMPARE(readings(log), 1);
    QVERIFY(moveTo("Europe/Berlin"));
    QTRY_COMPARE(readings(log), 2);
}

QTEST_MAIN(TestSettingsChanges)
#include "tst_settingschanges.moc"
