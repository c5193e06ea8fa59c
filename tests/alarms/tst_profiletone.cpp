// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/profiletone_p.h"
#include "alarms/utility.h"
#include "platform/sound/profile/soundprofile.h"

#include <QTest>

/** In which order it asks, and what it falls back to; how a profile is read is tests/sound/tst_soundprofile's. */
class TestProfileTone : public QObject
{
    Q_OBJECT

private slots:
    void asksTheCustomisationBeforeTheVendor();
    void isWhatTheProfileNames_data();
    void isWhatTheProfileNames();
    void isWhatTheSystemsProfileSays();
};

void TestProfileTone::asksTheCustomisationBeforeTheVendor()
{
    QStringList asked;
    Clock::profileTone([&](const QStringList &files, const QString &key) {
        asked = files + QStringList{key};
        return std::optional<QString>();
    });
    QCOMPARE(asked,
             QStringList({"/etc/profiled/97.custom.ini", "/etc/profiled/93.korvo.ini", "fallback/clock.alert.tone"}));
}

void TestProfileTone::isWhatTheProfileNames_data()
{
    QTest::addColumn<std::optional<QString>>("named");
    QTest::addColumn<QString>("tone");

    using Named = std::optional<QString>;
    QTest::newRow("a tone") << Named("/tones/Own tone.aac") << "/tones/Own tone.aac";
    QTest::newRow("an empty text") << Named("") << "";
    QTest::newRow("nothing") << Named() << "/usr/share/sounds/ring-tones/Clock alert 1.aac";
}

void TestProfileTone::isWhatTheProfileNames()
{
    QFETCH(const std::optional<QString>, named);
    QFETCH(const QString, tone);
    QCOMPARE(Clock::profileTone([&](const QStringList &, const QString &) { return named; }), tone);
}

void TestProfileTone::isWhatTheSystemsProfileSays()
{
    QCOMPARE(Clock::Utility::defaultAlertTone(), Clock::profileTone(&Sound::profileValue));
}

QTEST_APPLESS_MAIN(TestProfileTone)
#include "tst_profiletone.moc"
