// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/toneorder.h"

#include "platform/ringer/toneplayer.h"
#include "platform/ringer/volumerise.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Ringer::ToneOrder;
using Ringer::TonePlayer;

class TestToneOrder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theEventsToneComesFirst();
    void theCustomProfileWinsOverTheVendors();
    void anEmptyCustomProfileIsPassedOver();
    void theShippedToneIsFoundInTheDataFolders();
    void nothingComesTwice();
    void silenceThatWasChosenStays();
    void otherSilenceIsNoChoice_data();
    void otherSilenceIsNoChoice();
    void theVolumeRisesFromQuietToFull();

private:
    void write(const QString &file, const QString &tone);
    QString makeFile(const QString &name);
    [[nodiscard]] QStringList tones(const QString &event) const { return ToneOrder(m_folder->path()).tones(event); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestToneOrder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_DIRS", m_folder->path().toUtf8());
}

void TestToneOrder::write(const QString &file, const QString &tone)
{
    QFile profile(m_folder->filePath(file));
    QVERIFY(profile.open(QIODevice::WriteOnly));
    profile.write("[fallback]\nclock.alert.tone=" + tone.toUtf8() + "\n");
}

QString TestToneOrder::makeFile(const QString &name)
{
    QFile file(m_folder->filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
}

void TestToneOrder::theEventsToneComesFirst()
{
    QCOMPARE(tones({}), QStringList(TonePlayer::Beeps));
    QCOMPARE(tones("/a b.aac"), QStringList({"/a b.aac", TonePlayer::Beeps}));
    QCOMPARE(tones("file:///a%20b.aac"), QStringList({"/a b.aac", TonePlayer::Beeps}));
}

void TestToneOrder::theCustomProfileWinsOverTheVendors()
{
    write("93.korvo.ini", "/vendor.aac");
    QCOMPARE(tones("/a.aac"), QStringList({"/a.aac", "/vendor.aac", TonePlayer::Beeps}));
    write("97.custom.ini", "/custom.aac");
    QCOMPARE(tones("/a.aac"), QStringList({"/a.aac", "/custom.aac", TonePlayer::Beeps}));
}

void TestToneOrder::anEmptyCustomProfileIsPassedOver()
{
    write("93.korvo.ini", "/vendor.aac");
    QFile custom(m_folder->filePath("97.custom.ini"));
    QVERIFY(custom.open(QIODevice::WriteOnly));
    QVERIFY(tones({}).contains("/vendor.aac"));
}

void TestToneOrder::theShippedToneIsFoundInTheDataFolders()
{
    const auto tone = m_folder->filePath("sounds/ring-tones/Clock alert 1.aac");
    QVERIFY(QDir().mkpath(m_folder->filePath("sounds/ring-tones")));
    QFile file(tone);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(tones("/a.aac"), QStringList({"/a.aac", tone, TonePlayer::Beeps}));
}

void TestToneOrder::nothingComesTwice()
{
    write("97.custom.ini", "/a.aac");
    QCOMPARE(tones("/a.aac"), QStringList({"/a.aac", TonePlayer::Beeps}));
}

void TestToneOrder::silenceThatWasChosenStays()
{
    write("97.custom.ini", "/a.aac");
    const auto tone = makeFile("ring-tones/No sound.aac");
    QCOMPARE(tones(tone), QStringList(TonePlayer::Silence));
    QCOMPARE(tones(QUrl::fromLocalFile(tone).toString(QUrl::FullyEncoded)), QStringList(TonePlayer::Silence));
}

void TestToneOrder::otherSilenceIsNoChoice_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");
    QTest::newRow("not among the tones") << "music/No sound.aac" << true;
    QTest::newRow("another name") << "ring-tones/No sound at all.aac" << true;
    QTest::newRow("gone") << "ring-tones/No sound.aac" << false;
}

void TestToneOrder::otherSilenceIsNoChoice()
{
    QFETCH(QString, name);
    QFETCH(bool, exists);
    const auto tone = exists ? makeFile(name) : m_folder->filePath(name);
    QCOMPARE(tones(tone), QStringList({tone, TonePlayer::Beeps}));
}

void TestToneOrder::theVolumeRisesFromQuietToFull()
{
    using namespace std::chrono_literals;
    QCOMPARE(Ringer::riseVolume(0s), 0.15);
    QCOMPARE(Ringer::riseVolume(30s), 1.0);
    QCOMPARE(Ringer::riseVolume(5min), 1.0);
    for (auto time = 0s; time < 30s; time += 1s)
        QVERIFY(Ringer::riseVolume(time) < Ringer::riseVolume(time + 1s));
    // To the ear, halfway is the geometric mean.
    QVERIFY(qAbs(Ringer::riseVolume(15s) - std::sqrt(0.15)) < 1e-9);
}

QTEST_GUILESS_MAIN(TestToneOrder)
#include "tst_toneorder.moc"
