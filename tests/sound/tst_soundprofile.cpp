// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/profile/soundprofile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestSoundProfile : public QObject
{
    Q_OBJECT

private slots:
    void theFirstFileThatNamesItHasItsSay_data();
    void theFirstFileThatNamesItHasItsSay();
    void filesAreReadEachTime();
    void filesThatAreMissingStayMissing();
};

void TestSoundProfile::theFirstFileThatNamesItHasItsSay_data()
{
    QTest::addColumn<QByteArray>("first"); // null: there is no such file
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("value");
    const QByteArray one = "[fallback]\nclock.alert.tone=/tones/One.aac\n";
    const QByteArray two = "[fallback]\nclock.alert.tone=/tones/Two bells.aac\n";
    const QByteArray other = "[fallback]\nringing.alert.tone=/tones/Ring.aac\n";
    QTest::newRow("both") << one << two << "/tones/One.aac";
    QTest::newRow("the first") << one << QByteArray() << "/tones/One.aac";
    QTest::newRow("the second") << QByteArray() << two << "/tones/Two bells.aac";
    QTest::newRow("the first names something else") << other << two << "/tones/Two bells.aac";
    QTest::newRow("the first names it in another group")
        << QByteArray("[general]\nclock.alert.tone=/a.aac\n") << two << "/tones/Two bells.aac";
    QTest::newRow("the first is no ini file") << QByteArray("\x01\x02\n[[[\n") << two << "/tones/Two bells.aac";
    QTest::newRow("the first names it empty") << QByteArray("[fallback]\nclock.alert.tone=\n") << two << "";
    QTest::newRow("neither") << other << other << "none";
    QTest::newRow("no files") << QByteArray() << QByteArray() << "none";
}

void TestSoundProfile::theFirstFileThatNamesItHasItsSay()
{
    QFETCH(const QByteArray, first);
    QFETCH(const QByteArray, second);
    const QTemporaryDir folder;
    const auto write = [&](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        if (!content.isNull() && file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    const QStringList files{write("first.ini", first), write("second.ini", second)};
    QTEST(Sound::profileValue(files, "fallback/clock.alert.tone").value_or("none"), "value");
}

void TestSoundProfile::filesAreReadEachTime()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("profile.ini"));
    QVERIFY(!Sound::profileValue({file.fileName()}, "fallback/clock.alert.tone"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[fallback]\nclock.alert.tone=/tones/New.aac\n");
    file.close();
    QCOMPARE(Sound::profileValue({file.fileName()}, "fallback/clock.alert.tone").value_or("none"), "/tones/New.aac");
}

void TestSoundProfile::filesThatAreMissingStayMissing()
{
    const QTemporaryDir folder;
    QVERIFY(!Sound::profileValue({folder.filePath("profile.ini")}, "fallback/clock.alert.tone"));
    QVERIFY(QDir(folder.path()).isEmpty());
}

QTEST_APPLESS_MAIN(TestSoundProfile)
#include "tst_soundprofile.moc"
