// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/profiletone_p.h"
#include "alarms/utility.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char BuiltIn[] = "/usr/share/sounds/ring-tones/Clock alert 1.aac";

} // namespace

/** In which order it asks, and what it falls back to; how a profile is read is tests/sound/tst_soundprofile's. */
class ProfileToneTest : public QObject
{
    Q_OBJECT

private slots:
    void isTheFirstThatIsNamed_data();
    void isTheFirstThatIsNamed();
    void comesFromTheProfilesOfTheSystem();
};

void ProfileToneTest::isTheFirstThatIsNamed_data()
{
    QTest::addColumn<QByteArray>("custom"); // null: there is no such file
    QTest::addColumn<QByteArray>("vendor");
    QTest::addColumn<QString>("tone");

    const QByteArray own = "[fallback]\nclock.alert.tone=/tones/Own tone.aac\n";
    const QByteArray theirs = "[fallback]\nclock.alert.tone=/tones/Theirs.aac\n";
    QTest::newRow("the customisation wins") << own << theirs << "/tones/Own tone.aac";
    QTest::newRow("only the vendor") << QByteArray() << theirs << "/tones/Theirs.aac";
    QTest::newRow("the customisation names it empty") << QByteArray("[fallback]\nclock.alert.tone=\n") << theirs << "";
    QTest::newRow("no files") << QByteArray() << QByteArray() << BuiltIn;
}

void ProfileToneTest::isTheFirstThatIsNamed()
{
    QFETCH(const QByteArray, custom);
    QFETCH(const QByteArray, vendor);
    QFETCH(const QString, tone);
    const QTemporaryDir folder;
    const auto write = [&](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        if (!content.isNull() && file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    QCOMPARE(Clock::profileTone(write("custom.ini", custom), write("vendor.ini", vendor)), tone);
}

void ProfileToneTest::comesFromTheProfilesOfTheSystem()
{
    QCOMPARE(Clock::Utility::defaultAlertTone(),
             Clock::profileTone("/etc/profiled/97.custom.ini", "/etc/profiled/93.korvo.ini"));
}

QTEST_APPLESS_MAIN(ProfileToneTest)
#include "tst_profiletone.moc"
