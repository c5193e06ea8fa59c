// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/archive.h"

#include "platform/backup/tar.h"
#include "tests/backup/forgery.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using Backup::Archive;
using Backup::decode;
using Backup::encode;
namespace Wire = Astel::Timed::Wire;

namespace {

Archive sample()
{
    Wire::Event event;
    event.flags = Wire::AllFlags;
    event.timeoutSnooze = 600;
    event.maximalTimeoutSnoozeCounter = 3;
    event.attributes = {{"TITLE", QString::fromUtf8("Früh „raus“ ⏰")}, {"sound", "/home/a/Music/a b.mp3"}};
    event.recurrences = {{1u << 7, Q_UINT64_C(1) << 59, 0x3e, Wire::AllDaysOfMonth, Wire::AllMonths, true}};
    event.buttons = {{600, {{"NAME", "Snooze"}}}, {0, {}}};
    Wire::Event off;
    off.ticker = 0;
    return {QDateTime(QDate(2026, 11, 20), QTime(7, 30, 15), Qt::UTC),
            {{event, "WAITING", Q_UINT64_C(1795150800123456789)}, {off, "INACTIVE", 0}},
            {{"Korvo/Clock.conf", "[Clock]\nSnoozeTime=20\n"}, {"Other.conf", ""}},
            {{"/home/a/Music/a b.mp3", "music", "a b.mp3", QByteArray(700, '\xff')}}};
}

QByteArray withManifestValue(const QString &key, const QJsonValue &value)
{
    return forged(encode(sample()), "manifest.json", [&](const QByteArray &text) {
        QJsonObject manifest = QJsonDocument::fromJson(text).object();
        manifest.insert(key, value);
        return QJsonDocument(manifest).toJson();
    });
}

} // namespace

class TestArchive : public QObject
{
    Q_OBJECT

private slots:
    void holdsEverything_data();
    void holdsEverything();
    void otherProgramsCheckIt();
    void refusesEveryShorterFile();
    void refusesEveryFlippedBit();
    void refusesBytesBehindTheEnd();
    void refusesBlocksThatAreMissingDoubledOrMoved();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
};

void TestArchive::holdsEverything_data()
{
    QTest::addColumn<Archive>("archive");

    QTest::newRow("sample") << sample();
    QTest::newRow("nothing") << Archive{QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC), {}, {}, {}};
}

void TestArchive::holdsEverything()
{
    QFETCH(const Archive, archive);
    const auto decoded = decode(encode(archive));
    QVERIFY2(decoded, "it is refused");
    QCOMPARE(*decoded, archive);
}

void TestArchive::otherProgramsCheckIt()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.backup"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(encode(sample()));
    file.close();
    QProcess shell;
    shell.setWorkingDirectory(folder.path());
    shell.start("sh", {"-c", "tar xf a.backup && sha256sum --check --strict SHA256SUMS"});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 0);
    QCOMPARE(shell.readAllStandardOutput(),
             "manifest.json: OK\nevents.json: OK\nsettings/1: OK\nsettings/2: OK\ntones/1: OK\n");
}

void TestArchive::refusesEveryShorterFile()
{
    const QByteArray whole = encode(sample());
    for (qsizetype size = 0; size < whole.size(); ++size)
        QVERIFY2(!decode(whole.left(size)), qPrintable(QString::number(size)));
}

void TestArchive::refusesEveryFlippedBit()
{
    const QByteArray whole = encode(sample());
    for (qsizetype i = 0; i < whole.size() * 8; ++i) {
        QByteArray bytes = whole;
        bytes[i / 8] = char(bytes[i / 8] ^ (1 << (i % 8)));
        QVERIFY2(!decode(bytes), qPrintable(QStringLiteral("bit %1 of byte %2").arg(i % 8).arg(i / 8)));
    }
}

void TestArchive::refusesBytesBehindTheEnd()
{
    const QByteArray whole = encode(sample());
    QVERIFY(!decode(whole + '\0'));
    QVERIFY(!decode(whole + QByteArray(512, '\0')));
    QVERIFY(!decode(whole + whole));
}

void TestArchive::refusesBlocksThatAreMissingDoubledOrMoved()
{
    const QByteArray whole = encode(sample());
    const qsizetype blocks = whole.size() / 512;
    for (qsizetype i = 0; i < blocks; ++i) {
        QByteArray missing = whole;
        QVERIFY(!decode(missing.remove(i * 512, 512)));
        QByteArray doubled = whole;
        QVERIFY(!decode(doubled.insert(i * 512, whole.mid(i * 512, 512))));
        QByteArray empty = whole;
        empty.replace(i * 512, 512, QByteArray(512, '\0'));
        // The two blocks at the end are empty already.
        QCOMPARE(bool(decode(empty)), i >= blocks - 2);
    }
}

void TestArchive::saysWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("what");

    const QByteArray whole = encode(sample());
    const auto reworded = [](const char *text) { return [=](const QByteArray &) { return QByteArray(text); }; };
    QTest::newRow("empty") << QByteArray() << "not a backup";
    QTest::newRow("text") << QByteArray("alarms\n") << "not a backup";
    QTest::newRow("long text") << QByteArray(5000, 'x') << "not a backup";
    QTest::newRow("zip") << QByteArray("PK\003\004").leftJustified(2048, '\0') << "not a backup";
    QTest::newRow("zeros") << QByteArray(10240, '\0') << "not a backup";
    QTest::newRow("another tar") << Backup::writeTar({{"letter.txt", "Dear"}}) << "not a backup";
    QTest::newRow("cut off") << whole.left(whole.size() / 2) << "cut off";
    QTest::newRow("last byte missing") << whole.chopped(1) << "cut off";
    QTest::newRow("content") << QByteArray(whole).replace("SnoozeTime=20", "SnoozeTime=21") << "checksums";
    QTest::newRow("without checksums") << Backup::writeTar(Backup::readTar(whole)->mid(0, 3)) << "checksums";
    QTest::newRow("newer") << withManifestValue("version", 2) << "version 2";
    QTest::newRow("no version") << withManifestValue("version", {}) << "version";
    QTest::newRow("another format") << withManifestValue("format", "cake") << "not a backup";
    QTest::newRow("file that is missing")
        << withManifestValue("settings", QJsonDocument::fromJson(R"([{"member": "settings/9"}])").array())
        << "manifest.json";
    QTest::newRow("tone that is missing")
        << withManifestValue("tones", QJsonDocument::fromJson(R"([{"member": "tones/9"}])").array()) << "manifest.json";
    QTest::newRow("manifest that is none") << forged(whole, "manifest.json", reworded("[]")) << "not a backup";
    QTest::newRow("events that are none") << forged(whole, "events.json", reworded("{}")) << "events.json";
    QTest::newRow("event that is none") << forged(whole, "events.json", reworded("[{\"event\": 5}]")) << "events.json";
    QTest::newRow("no JSON") << forged(whole, "events.json", reworded("hello")) << "events.json";
}

void TestArchive::saysWhatIsWrong()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, what);
    const auto decoded = decode(bytes);
    QVERIFY(!decoded);
    QVERIFY2(decoded.error().text.contains(what), qPrintable(decoded.error().text));
    QCOMPARE(decoded.error().exit, Exit::Failed);
}

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
