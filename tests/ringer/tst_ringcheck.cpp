// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringcheck.h"

#include "platform/ringer/gsttoneplayer.h"
#include "platform/ringer/pluginloader.h"
#include "platform/ringer/toneplayer.h"
#include "platform/ringer/toneprobe.h"
#include "tests/ringer/soundserver.h"
#include "tests/support/places.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTest>

#include <optional>

using Ringer::RingCheck;
using Ringer::TonePlayer;

namespace {

const QString BuiltInTone = Places::sharedData("sounds/ring-tones/Clock alert 1.aac");

} // namespace

class TestRingCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aToneIsProbed_data();
    void aToneIsProbed();
    void aPipeIsNotWaitedFor();
    void thatGoesWithoutASound();
    void theSoundOutputIsToldWithItsVolume();
    void aMutedOutputIsTold();
    void aVolumeThatIsTheStreamsCountsAsFull();
    void anOutputThatLeadsNowhereIsNone();
    void withoutAServerThereIsNoOutput();
    void tonesFallOutInTheirOrder();
    void aPluginThatLoadsHasNothingAgainstIt();
    void aPluginIsRefused_data();
    void aPluginIsRefused();
    void manyChecksAreAnsweredOneByOne();
    void aCheckThatIsNoLongerWantedIsForgotten();

private:
    [[nodiscard]] QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QVariantMap check(const QString &tone = {}, const QString &plugin = "librecording");

    QTemporaryDir m_folder;
    Support::SoundServer m_server;
    Ringer::PluginLoader m_plugins{QStringLiteral(TEST_PLUGIN_DIR)};
};

void TestRingCheck::initTestCase()
{
    QVERIFY(m_server.start());
    QVERIFY(Support::writeSine(file("sine.wav"), 0.8f, 700));
    QVERIFY(Support::writeSine(file("long.wav"), 0.8f, 60'000));
    QVERIFY(Support::writeSine(file("silent.wav"), 0, 5000));
    QVERIFY(Support::writeSine(file("short silence.wav"), 0, 200));
    QFile empty(file("empty.aac"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QFile noise(file("text.mp3"));
    QVERIFY(noise.open(QIODevice::WriteOnly));
    QVERIFY(noise.write(QByteArray("no music in here\n").repeated(1000)) > 0);
}

void TestRingCheck::init()
{
    QVERIFY(m_server.control({"set-sink-volume", "null", "80%"}));
    QVERIFY(m_server.control({"set-sink-mute", "null", "0"}));
}

QVariantMap TestRingCheck::check(const QString &tone, const QString &plugin)
{
    RingCheck check(&m_plugins, Ringer::ToneOrder(m_folder.path()));
    std::optional<QVariantMap> answer;
    const auto isStarted = check.start(tone, plugin, [&answer](const QVariantMap &facts) { answer = facts; });
    // It is asynchronous: nothing is known before the event loop has run.
    if (!isStarted || answer || !QTest::qWaitFor([&answer] { return answer.has_value(); }, 15'000))
        return {};
    return *answer;
}

void TestRingCheck::aToneIsProbed_data()
{
    QTest::addColumn<QString>("tone");
    QTest::addColumn<QString>("reason");
    QTest::newRow("the tone that ships") << BuiltInTone << "";
    QTest::newRow("a short file") << file("sine.wav") << "";
    QTest::newRow("a long file") << file("long.wav") << "";
    QTest::newRow("beeps") << QString(TonePlayer::Beeps) << "";
    QTest::newRow("chosen silence") << QString(TonePlayer::Silence) << "";
    QTest::newRow("missing") << file("missing.aac") << "is missing";
    QTest::newRow("empty") << file("empty.aac") << "is empty";
    QTest::newRow("a folder") << m_folder.path() << "is no file";
    QTest::newRow("a device") << "/dev/zero"
                              << "is no file";
    QTest::newRow("silent") << file("silent.wav") << "is silent";
    QTest::newRow("silent and short") << file("short silence.wav") << "is silent";
    QTest::newRow("undecodable") << file("text.mp3") << "cannot be decoded";
}

void TestRingCheck::aToneIsProbed()
{
    QFETCH(QString, tone);
    QFETCH(QString, reason);
    QElapsedTimer time;
    time.start();
    const auto found = Ringer::probeTone(tone);
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
    if (reason.isEmpty())
        QCOMPARE(found, QString());
    else
        QVERIFY2(found.startsWith(reason), qPrintable(found));
}

void TestRingCheck::aPipeIsNotWaitedFor()
{
    QCOMPARE(QProcess::execute("mkfifo", {file("pipe.aac")}), 0);
    QCOMPARE(Ringer::probeTone(file("pipe.aac")), QString("is no file"));
}

void TestRingCheck::thatGoesWithoutASound()
{
    QTRY_COMPARE(m_server.peak(200), 0.0f);
    m_server.forget();
    QCOMPARE(check(file("sine.wav"))["tone"].toString(), file("sine.wav"));
    QTRY_VERIFY(m_server.samples().size() > Support::SoundServer::Rate);
    QCOMPARE(m_server.peak(1000), 0.0f);
}

void TestRingCheck::theSoundOutputIsToldWithItsVolume()
{
    const auto facts = check();
    QCOMPARE(facts["output"].toString(), QString("Null Output"));
    QCOMPARE(facts["volume"].toUInt(), 80u);
    QCOMPARE(facts.value("muted"), QVariant(false));
    QVERIFY(!facts.contains("output_reason"));
    QVERIFY(m_server.control({"set-sink-volume", "null", "0%"}));
    QCOMPARE(check().value("volume"), QVariant(0u));
}

void TestRingCheck::aMutedOutputIsTold()
{
    QVERIFY(m_server.control({"set-sink-mute", "null", "1"}));
    QCOMPARE(check().value("muted"), QVariant(true));
}

void TestRingCheck::aVolumeThatIsTheStreamsCountsAsFull()
{
    QFile configuration(file("daemon.conf"));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write("flat-volumes = yes\n");
    configuration.close();
    m_server.kill();
    qputenv("PULSE_CONFIG", configuration.fileName().toUtf8());
    QVERIFY(m_server.start());
    QVERIFY(m_server.control({"set-sink-volume", "null", "10%"}));
    const auto facts = check();
    Ringer::GstTonePlayer player;
    player.play(file("sine.wav"), 0);
    // Played at a volume of 10 %, which is cubic, it would be a hundredth of this.
    QTRY_VERIFY(m_server.peak(200) > 0.08f);
    player.stop();
    m_server.kill();
    qunsetenv("PULSE_CONFIG");
    QVERIFY(m_server.start());
    QCOMPARE(facts.value("volume"), QVariant(100u));
}

void TestRingCheck::anOutputThatLeadsNowhereIsNone()
{
    QVERIFY(m_server.control({"load-module", "module-null-sink", "sink_name=auto_null"}));
    QVERIFY(m_server.control({"set-default-sink", "auto_null"}));
    const auto facts = check();
    QVERIFY(m_server.control({"set-default-sink", "null"}));
    QVERIFY(!facts.contains("output"));
    QVERIFY(!facts.contains("volume"));
    QCOMPARE(facts["output_reason"].toString(), QString("the sound server has no sound device"));
}

void TestRingCheck::withoutAServerThereIsNoOutput()
{
    m_server.kill();
    const auto facts = check();
    QVERIFY(m_server.start());
    QVERIFY(!facts.contains("output"));
    QVERIFY(!facts["output_reason"].toString().isEmpty());
    // The tones have nothing to do with that.
    QCOMPARE(facts["tone"].toString(), QString(BuiltInTone));
}

void TestRingCheck::tonesFallOutInTheirOrder()
{
    QFile profile(file("97.custom.ini"));
    QVERIFY(profile.open(QIODevice::WriteOnly));
    profile.write("[fallback]\nclock.alert.tone=" + file("silent.wav").toUtf8() + "\n");
    profile.close();
    const auto facts = check(file("missing.aac"));
    QVERIFY(profile.remove());
    QCOMPARE(facts["tone"].toString(), QString(BuiltInTone));
    QCOMPARE(facts["rejected_tones"].toStringList(), QStringList({file("missing.aac"), file("silent.wav")}));
    QCOMPARE(facts["rejected_reasons"].toStringList(), QStringList({"is missing", "is silent"}));
}

void TestRingCheck::aPluginThatLoadsHasNothingAgainstIt()
{
    const auto facts = check();
    QVERIFY(!facts.contains("plugin_reason"));
    QCOMPARE(facts.value("display"), QVariant(QGuiApplication::platformName() != "offscreen"));
}

void TestRingCheck::aPluginIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none named") << QString();
    QTest::newRow("not there") << "libmissing";
    QTest::newRow("a path out of the folder") << "../ringer-plugins/librecording";
    QTest::newRow("another version of the interface") << "liboutdated";
}

void TestRingCheck::aPluginIsRefused()
{
    QFETCH(QString, name);
    QVERIFY(!check({}, name)["plugin_reason"].toString().isEmpty());
}

void TestRingCheck::manyChecksAreAnsweredOneByOne()
{
    RingCheck check(&m_plugins, Ringer::ToneOrder(m_folder.path()));
    QStringList answers;
    const auto start = [&](const char *name) {
        return check.start(file(name), "librecording",
                           [&answers](const QVariantMap &facts) { answers += facts["tone"].toString(); });
    };
    for (const auto *name : {"sine.wav", "long.wav", "silent.wav"})
        QVERIFY(start(name));
    QTRY_COMPARE_WITH_TIMEOUT(answers, QStringList({file("sine.wav"), file("long.wav"), BuiltInTone}), 15'000);

    answers.clear();
    for (auto number = 0; number < RingCheck::MaximalChecks; ++number)
        QVERIFY(start("sine.wav"));
    QVERIFY(!start("sine.wav"));
    QTRY_COMPARE_WITH_TIMEOUT(answers.size(), qsizetype(RingCheck::MaximalChecks), 15'000);
    QVERIFY(start("sine.wav"));
    QTRY_COMPARE(answers.size(), qsizetype(RingCheck::MaximalChecks) + 1);
}

void TestRingCheck::aCheckThatIsNoLongerWantedIsForgotten()
{
    auto isAnswered = false;
    {
        RingCheck check(&m_plugins);
        QVERIFY(
            check.start(file("sine.wav"), "librecording", [&isAnswered](const QVariantMap &) { isAnswered = true; }));
    }
    QCoreApplication::processEvents();
    QVERIFY(!isAnswered);
}

QTEST_MAIN(TestRingCheck)
#include "tst_ringcheck.moc"
