// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/gsttoneplayer.h"
#include "tests/ringer/soundserver.h"
#include "tests/support/places.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using Ringer::GstTonePlayer;
using Ringer::TonePlayer;

namespace {

constexpr auto Silence = 0.002f;

// The longest stretch of silence in milliseconds.
qsizetype longestGap(const QList<float> &samples)
{
    qsizetype longest = 0;
    qsizetype gap = 0;
    for (const auto sample : samples) {
        gap = std::abs(sample) < Silence ? gap + 1 : 0;
        longest = std::max(longest, gap);
    }
    return longest * 1000 / Support::SoundServer::Rate;
}

QList<float> loudestOfEach(const QList<float> &samples, int milliseconds)
{
    const auto size = qsizetype(milliseconds) * Support::SoundServer::Rate / 1000;
    QList<float> result;
    for (qsizetype start = 0; start + size <= samples.size(); start += size) {
        const auto part = samples.mid(start, size);
        result += *std::max_element(part.begin(), part.end());
    }
    return result;
}

QString textOf(const QList<float> &values)
{
    QStringList texts;
    for (const auto value : values)
        texts += QString::number(double(value), 'f', 2);
    return texts.join(' ');
}

} // namespace

class TestGstTonePlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aToneIsHeard_data();
    void aToneIsHeard();
    void loopsWithoutAGap();
    void risesFromQuiet();
    void reachesFullInItsTimeAndStays();
    void laterRoundsAreAtFullVolumeAtOnce();
    void laterRoundsTakeWhateverOutputThereIs();
    void stopIsSilentAtOnce();
    void aToneThatCannotBeHeardFailsWithinTwoSeconds_data();
    void aToneThatCannotBeHeardFailsWithinTwoSeconds();
    void nothingIsSaidAfterStop();
    void chosenSilenceCountsAsHeard();
    void failsWhenTheServerDies();

private:
    [[nodiscard]] QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
    Support::SoundServer m_server;
};

void TestGstTonePlayer::initTestCase()
{
    QVERIFY(m_server.start());
    QVERIFY(Support::writeSine(file("sine.wav"), 0.8f, 700));
    QVERIFY(Support::writeSine(file("silent.wav"), 0, 5000));
    QFile empty(file("empty.aac"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QFile noise(file("text.mp3"));
    QVERIFY(noise.open(QIODevice::WriteOnly));
    QVERIFY(noise.write(QByteArray("no music in here\n").repeated(1000)) > 0);
}

void TestGstTonePlayer::init()
{
    QTRY_COMPARE(m_server.peak(200), 0.0f);
    m_server.forget();
}

void TestGstTonePlayer::aToneIsHeard_data()
{
    QTest::addColumn<QString>("tone");
    QTest::newRow("the tone that ships") << Places::sharedData("sounds/ring-tones/Clock alert 1.aac");
    QTest::newRow("a sound file") << file("sine.wav");
    QTest::newRow("beeps without a file") << QString(TonePlayer::Beeps);
}

void TestGstTonePlayer::aToneIsHeard()
{
    QFETCH(QString, tone);
    GstTonePlayer player;
    QSignalSpy audible(&player, &TonePlayer::audible);
    player.play(tone, 0);
    QVERIFY(audible.wait(2000));
    QTRY_VERIFY(m_server.peak(500) > 0.03f);
    QCOMPARE(audible.size(), 1);
}

void TestGstTonePlayer::loopsWithoutAGap()
{
    GstTonePlayer player;
    player.play(file("sine.wav"), 0);
    QTRY_VERIFY(m_server.peak(50) > Silence);
    m_server.forget();
    QTRY_VERIFY(m_server.samples().size() >= qsizetype(3) * Support::SoundServer::Rate);
    const auto gap = longestGap(m_server.samples());
    QVERIFY2(gap <= 5, qPrintable(QStringLiteral("%1 ms of silence").arg(gap)));
}

void TestGstTonePlayer::risesFromQuiet()
{
    GstTonePlayer player;
    player.play(file("sine.wav"), 0);
    QTRY_VERIFY(m_server.peak(100) > Silence);
    const auto first = m_server.peak(100);
    QVERIFY2(first > 0.09f && first < 0.16f, qPrintable(QString::number(first)));
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(100) > 1.3f * first, 10'000);
}

void TestGstTonePlayer::reachesFullInItsTimeAndStays()
{
    using namespace std::chrono_literals;
    GstTonePlayer player(3s);
    player.play(file("sine.wav"), 0);
    QTRY_VERIFY(m_server.peak(100) > Silence);
    const auto start = m_server.samples().size() - Support::SoundServer::Rate / 10;
    QTRY_VERIFY(m_server.samples().size() >= start + 5 * Support::SoundServer::Rate);
    const auto loudest = loudestOfEach(m_server.samples().mid(start), 500);
    QVERIFY2(std::is_sorted(loudest.begin(), loudest.begin() + 6,
                            [](float left, float right) { return left < right - 0.02f; }),
             qPrintable(textOf(loudest)));
    QVERIFY2(loudest.first() < 0.25f && loudest.at(8) > 0.75f && loudest.at(9) > 0.75f, qPrintable(textOf(loudest)));
}

void TestGstTonePlayer::laterRoundsAreAtFullVolumeAtOnce()
{
    GstTonePlayer player;
    player.play(file("sine.wav"), 3);
    QTRY_VERIFY(m_server.peak(100) > Silence);
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(100) > 0.75f, 2000);
}

void TestGstTonePlayer::laterRoundsTakeWhateverOutputThereIs()
{
    for (const auto round : {1, 2}) {
        GstTonePlayer player;
        QSignalSpy audible(&player, &TonePlayer::audible);
        player.play(file("sine.wav"), round);
        QVERIFY(audible.wait(3000));
    }
}

void TestGstTonePlayer::stopIsSilentAtOnce()
{
    GstTonePlayer player;
    player.play(file("sine.wav"), 0);
    QTRY_VERIFY(m_server.peak(100) > Silence);
    player.stop();
    QElapsedTimer time;
    time.start();
    QTRY_VERIFY(m_server.peak(100) < Silence);
    QVERIFY2(time.elapsed() < 700, qPrintable(QString::number(time.elapsed())));
}

void TestGstTonePlayer::aToneThatCannotBeHeardFailsWithinTwoSeconds_data()
{
    QTest::addColumn<QString>("tone");
    QTest::newRow("missing") << file("missing.aac");
    QTest::newRow("a folder") << m_folder.path();
    QTest::newRow("empty") << file("empty.aac");
    QTest::newRow("silent") << file("silent.wav");
    QTest::newRow("undecodable") << file("text.mp3");
}

void TestGstTonePlayer::aToneThatCannotBeHeardFailsWithinTwoSeconds()
{
    QFETCH(QString, tone);
    GstTonePlayer player;
    QSignalSpy audible(&player, &TonePlayer::audible);
    QSignalSpy failed(&player, &TonePlayer::failed);
    QElapsedTimer time;
    time.start();
    player.play(tone, 0);
    QVERIFY(failed.wait(4000));
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(!failed.first().first().toString().isEmpty());
    QCOMPARE(audible.size(), 0);
}

void TestGstTonePlayer::nothingIsSaidAfterStop()
{
    GstTonePlayer player;
    QSignalSpy audible(&player, &TonePlayer::audible);
    QSignalSpy failed(&player, &TonePlayer::failed);
    player.play(file("missing.aac"), 0);
    player.stop();
    player.play(file("sine.wav"), 0);
    QVERIFY(audible.wait(2000));
    QCOMPARE(failed.size(), 0);
}

void TestGstTonePlayer::chosenSilenceCountsAsHeard()
{
    GstTonePlayer player;
    QSignalSpy audible(&player, &TonePlayer::audible);
    QSignalSpy failed(&player, &TonePlayer::failed);
    player.play(file("sine.wav"), 0);
    QVERIFY(audible.wait(2000));
    player.play(TonePlayer::Silence, 0);
    QCOMPARE(audible.size(), 2);
    QTRY_COMPARE(m_server.peak(200), 0.0f);
    // Longer than any watchdog.
    QVERIFY(!failed.wait(4000));
    QCOMPARE(m_server.peak(200), 0.0f);
}

void TestGstTonePlayer::failsWhenTheServerDies()
{
    GstTonePlayer player;
    QSignalSpy audible(&player, &TonePlayer::audible);
    QSignalSpy failed(&player, &TonePlayer::failed);
    player.play(file("sine.wav"), 0);
    QVERIFY(audible.wait(2000));
    m_server.kill();
    QVERIFY(failed.size() == 1 || failed.wait(5000));
    QCOMPARE(failed.size(), 1);
    QVERIFY(m_server.start());
}

QTEST_GUILESS_MAIN(TestGstTonePlayer)
#include "tst_gsttoneplayer.moc"
