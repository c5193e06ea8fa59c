// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/settings.h"

#include <QTest>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void holdsEveryName_data();
    void holdsEveryName();
};

void TestSettings::holdsEveryName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("default alarm time") << QString(Settings::DefaultAlarmTime) << "08:00:00";
    QTest::newRow("clock type") << QString(Settings::ClockType) << "analog";
    QTest::newRow("organisation") << QString(Settings::Organisation) << "Korvo";
    QTest::newRow("application") << QString(Settings::Application) << "Clock";
    QTest::newRow("snooze time") << QString(Settings::SnoozeTimeKey) << "Clock/SnoozeTime";
    QTest::newRow("default tone") << QString(Settings::DefaultToneKey) << "Clock/DefaultTone";
    QTest::newRow("built-in tone") << QString(Settings::BuiltInTone)
                                   << "/usr/share/sounds/ring-tones/Clock alert 1.aac";
    QTest::newRow("default snooze") << QString::number(Settings::DefaultSnooze) << "10";
    QTest::newRow("custom profile") << QString(Settings::CustomProfile) << "/etc/profiled/97.custom.ini";
    QTest::newRow("vendor profile") << QString(Settings::VendorProfile) << "/etc/profiled/93.korvo.ini";
    QTest::newRow("profile tone") << QString(Settings::ProfileToneKey) << "fallback/clock.alert.tone";
    QTest::newRow("default alarm time key") << QString(Settings::DefaultAlarmTimeKey) << "Clock/DefaultAlarmTime";
    QTest::newRow("last visited tab") << QString(Settings::LastVisitedTabKey) << "Clock/LastVisitedTab";
    QTest::newRow("clock tab") << QString(Settings::ClockTab) << "ClockTab";
    QTest::newRow("alarm tab") << QString(Settings::AlarmTab) << "AlarmTab";
    QTest::newRow("trigger property") << QString(Settings::TriggerProperty) << "Alarm.Trigger";
    QTest::newRow("alert tone setting") << QString(Settings::AlertToneSetting) << "clock.alert.tone";
    QTest::newRow("clock type key") << QString(Settings::ClockTypeKey) << "/apps/clock/clocktype";
}

void TestSettings::holdsEveryName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, expected);
    QCOMPARE(name, expected);
}

QTEST_APPLESS_MAIN(TestSettings)
#include "tst_settings.moc"
