// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/alarmtone.h"

#include "tests/ringer/sinknames.h"
#include "tests/ringer/soundserver.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gst/gst.h>

using Sound::AlarmTone;
using Sound::OutputKeeper;
using Sound::OutputsBefore;
using Place = Sound::PulseSink::Place;
namespace OutputRecord = Sound::OutputRecord;

namespace {

constexpr auto Heard = 0.1f;
// The outputs are looked for every two seconds, and a server on a busy machine takes its time to tell.
constexpr auto Patience = 20000; // milliseconds

constexpr auto NoCard = "# nothing\n";
// What it plays goes into a file.
constexpr auto Card = "pcm.sysdefault { type file slave.pcm { type null } file \"FOLDER/heard.raw\" format raw }\n";

} // namespace

/** A tone on a real sound server: it is heard whatever was muted, and in the room as well as in the ears. */
class TestAlarmTone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void theServerTellsWhereASinkIs();
    void theStreamIsAnAlarm();
    void aMutedOutputIsOpenedForTheTone();
    void aLowOutputIsRaisedForTheTone_data();
    void aLowOutputIsRaisedForTheTone();
    void whatIsMutedWhileItSoundsIsOpenedAgain();
    void whatTheUserChangesMeanwhileStays();
    void whatIsToBePutBackIsWrittenDown();
    void whatAKilledProgramLeftIsPutBack();
    void headphonesAndLoudspeakerBothSound();
    void aLoudspeakerThatGoesLeavesTheHeadphones();
    void headphonesThatComeLaterDoNotSilenceTheRoom();
    void theLoudspeakerAloneSoundsOnce();
    void withoutAServerThereIsAReason();
    void withoutAServerTheCardSounds();
    void aServerThatHangsGivesWayToTheCard();
    void aServerThatHangsWhileItSoundsHoldsNobodyUp();

private:
    void start();
    [[nodiscard]] bool plugIn(const QByteArray &card);
    [[nodiscard]] bool isCardHeard() const;
    [[nodiscard]] bool addSink(const QString &name, const QString &formFactor);
    [[nodiscard]] int streams();

    QTemporaryDir m_card;
    Support::SoundServer m_server;
    std::unique_ptr<AlarmTone> m_tone;
};

void TestAlarmTone::initTestCase()
{
    qputenv("ALSA_CONFIG_PATH", QFile::encodeName(m_card.filePath("asound.conf")));
    gst_init(nullptr, nullptr);
}

void TestAlarmTone::init()
{
    m_tone.reset();
    m_server.goOn();
    m_server.kill();
    QVERIFY(plugIn(NoCard));
    QVERIFY(m_server.start());
    m_tone = std::make_unique<AlarmTone>();
}

void TestAlarmTone::start()
{
    QString reason;
    QVERIFY2(m_tone->start({}, 0, 1, &reason), qPrintable(reason));
}

// A file of its own each time, for the library looks whether it is another one.
bool TestAlarmTone::plugIn(const QByteArray &card)
{
    QFile::remove(m_card.filePath("heard.raw"));
    QSaveFile file(m_card.filePath("asound.conf"));
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray(card).replace("FOLDER", m_card.path().toUtf8())) > 0
        && file.commit();
}

bool TestAlarmTone::isCardHeard() const
{
    QFile file(m_card.filePath("heard.raw"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray heard = file.read(1'000'000);
    return heard.size() - heard.count('\0') > 10'000;
}

bool TestAlarmTone::addSink(const QString &name, const QString &formFactor)
{
    return m_server.control(
        {"load-module", "module-null-sink", "sink_name=" + name, "sink_properties=device.form_factor=" + formFactor});
}

int TestAlarmTone::streams()
{
    return int(m_server.query({"list", "short", "sink-inputs"}).count('\n'));
}

void TestAlarmTone::theServerTellsWhereASinkIs()
{
    QVERIFY(addSink("ears", "headset"));
    QVERIFY(addSink("speaker", "internal"));
    QString reason;
    const auto server = Sound::PulseServer::create(&reason);
    QVERIFY2(server, qPrintable(reason));
    const auto sinks = server->sinks();
    QVERIFY(sinks);
    QCOMPARE(namesOf(*sinks), "null ears speaker");
    QCOMPARE(sinks->at(0).place, Place::Unknown);
    QVERIFY(sinks->at(0).isDefault);
    QCOMPARE(sinks->at(1).place, Place::Ears);
    QCOMPARE(sinks->at(2).place, Place::Room);
}

// What other sounds are set to does not reach it.
void TestAlarmTone::theStreamIsAnAlarm()
{
    start();
    QTRY_COMPARE(streams(), 1);
    const auto stream = m_server.query({"list", "sink-inputs"});
    QVERIFY2(stream.contains("media.role = \"alarm\""), qPrintable(stream));
    QVERIFY2(stream.contains("Mute: no"), qPrintable(stream));
    QVERIFY2(stream.contains(" 100% "), qPrintable(stream));
}

void TestAlarmTone::aMutedOutputIsOpenedForTheTone()
{
    QVERIFY(m_server.control({"set-sink-mute", "null", "1"}));
    start();
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    m_tone->stop();
    QTRY_COMPARE(m_server.query({"get-sink-mute", "null"}).trimmed(), "Mute: yes");
}

void TestAlarmTone::aLowOutputIsRaisedForTheTone_data()
{
    QTest::addColumn<QString>("volume");
    QTest::addColumn<QString>("meanwhile");
    QTest::newRow("at nothing") << " 0%"
                                << " 50%";
    QTest::newRow("low") << " 20%"
                         << " 50%";
    QTest::newRow("loud enough") << " 70%"
                                 << " 70%";
}

void TestAlarmTone::aLowOutputIsRaisedForTheTone()
{
    QFETCH(QString, volume);
    QFETCH(QString, meanwhile);
    const auto now = [this] { return m_server.query({"get-sink-volume", "null"}); };
    QVERIFY(m_server.control({"set-sink-volume", "null", volume.trimmed()}));
    start();
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    QTRY_VERIFY2(now().contains(meanwhile), qPrintable(now()));
    m_tone->stop();
    QTRY_VERIFY2(now().contains(volume), qPrintable(now()));
}

void TestAlarmTone::whatIsMutedWhileItSoundsIsOpenedAgain()
{
    start();
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    QVERIFY(m_server.control({"set-sink-mute", "null", "1"}));
    QTRY_COMPARE(m_server.peak(200), 0.0f);
    QTRY_VERIFY(m_server.peak(200) > Heard);
}

void TestAlarmTone::whatTheUserChangesMeanwhileStays()
{
    QVERIFY(m_server.control({"set-sink-volume", "null", "10%"}));
    start();
    const auto now = [this] { return m_server.query({"get-sink-volume", "null"}); };
    QTRY_VERIFY2(now().contains(" 50%"), qPrintable(now()));
    QVERIFY(m_server.control({"set-sink-volume", "null", "80%"}));
    m_tone.reset();
    QVERIFY2(now().contains(" 80%"), qPrintable(now()));
}

void TestAlarmTone::whatIsToBePutBackIsWrittenDown()
{
    QVERIFY(m_server.control({"set-sink-mute", "null", "1"}));
    QVERIFY(m_server.control({"set-sink-volume", "null", "20%"}));
    start();
    QTRY_COMPARE(OutputRecord::read(), (OutputsBefore{{"null", {true, 20}}}));
    m_tone->stop();
    QTRY_COMPARE(OutputRecord::read(), OutputsBefore());
}

void TestAlarmTone::whatAKilledProgramLeftIsPutBack()
{
    // The one of this test may still be looking for what was left before it.
    m_tone.reset();
    QVERIFY(m_server.control({"set-sink-volume", "null", "50%"}));
    OutputRecord::write({{"null", {true, 20}}, {"a sink that has gone", {true, {}}}});
    m_tone = std::make_unique<AlarmTone>();
    QTRY_COMPARE(m_server.query({"get-sink-mute", "null"}).trimmed(), "Mute: yes");
    QVERIFY(m_server.query({"get-sink-volume", "null"}).contains(" 20%"));
    QTRY_COMPARE(OutputRecord::read(), OutputsBefore());
}

void TestAlarmTone::headphonesAndLoudspeakerBothSound()
{
    QVERIFY(addSink("speaker", "internal"));
    QVERIFY(addSink("ears", "headset"));
    QVERIFY(m_server.control({"set-default-sink", "ears"}));
    QVERIFY(m_server.control({"set-sink-mute", "speaker", "1"}));
    start();
    for (const auto *name : {"ears", "speaker"}) {
        QVERIFY(m_server.listenTo(name));
        QTRY_VERIFY2(m_server.peak(1000) > Heard, name);
    }
    QCOMPARE(streams(), 2);
    m_tone->stop();
    QTRY_COMPARE(m_server.peak(200), 0.0f);
    QCOMPARE(streams(), 0);
    QTRY_COMPARE(m_server.query({"get-sink-mute", "speaker"}).trimmed(), "Mute: yes");
}

void TestAlarmTone::aLoudspeakerThatGoesLeavesTheHeadphones()
{
    QVERIFY(addSink("ears", "headphone"));
    QVERIFY(m_server.control({"set-default-sink", "ears"}));
    const auto module = m_server.query(
        {"load-module", "module-null-sink", "sink_name=speaker", "sink_properties=device.form_factor=speaker"});
    QSignalSpy failed(m_tone.get(), &AlarmTone::failed);
    start();
    QTRY_COMPARE_WITH_TIMEOUT(streams(), 2, Patience);
    QVERIFY(m_server.control({"unload-module", module.trimmed()}));
    QTRY_COMPARE_WITH_TIMEOUT(streams(), 1, Patience);
    QVERIFY(m_server.listenTo("ears"));
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    QCOMPARE(failed.size(), 0);
}

void TestAlarmTone::headphonesThatComeLaterDoNotSilenceTheRoom()
{
    QVERIFY(addSink("speaker", "internal"));
    QVERIFY(m_server.control({"set-default-sink", "speaker"}));
    start();
    QVERIFY(m_server.listenTo("speaker"));
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    QVERIFY(addSink("ears", "headset"));
    QVERIFY(m_server.control({"set-default-sink", "ears"}));
    QVERIFY(m_server.listenTo("ears"));
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    QVERIFY(m_server.listenTo("speaker"));
    QTRY_VERIFY(m_server.peak(1000) > Heard);
}

void TestAlarmTone::theLoudspeakerAloneSoundsOnce()
{
    QVERIFY(addSink("ears", "headset"));
    QVERIFY(addSink("speaker", "internal"));
    QVERIFY(m_server.control({"set-default-sink", "speaker"}));
    auto *keeper = m_tone->findChild<OutputKeeper *>();
    QVERIFY(keeper);
    QSignalSpy looked(keeper, &OutputKeeper::looked);
    start();
    QTRY_VERIFY(looked.size() >= 2);
    QCOMPARE(streams(), 1);
    QVERIFY(m_server.listenTo("ears"));
    QCOMPARE(m_server.peak(200), 0.0f);
}

void TestAlarmTone::withoutAServerThereIsAReason()
{
    m_server.kill();
    QString reason;
    QVERIFY(!m_tone->start({}, 0, 1, &reason));
    QVERIFY(reason.contains("no sound"));
}

void TestAlarmTone::withoutAServerTheCardSounds()
{
    m_server.kill();
    QVERIFY(plugIn(Card));
    QSignalSpy flows(m_tone.get(), &AlarmTone::flows);
    start();
    QTRY_VERIFY(isCardHeard());
    QTRY_VERIFY(flows.contains(QVariantList{true}));
}

void TestAlarmTone::aServerThatHangsGivesWayToTheCard()
{
    QVERIFY(plugIn(Card));
    m_server.hang();
    QElapsedTimer time;
    time.start();
    start();
    QVERIFY2(time.elapsed() < 1500, qPrintable(QString::number(time.elapsed())));
    QTRY_VERIFY(isCardHeard());
}

void TestAlarmTone::aServerThatHangsWhileItSoundsHoldsNobodyUp()
{
    start();
    QTRY_VERIFY(m_server.peak(1000) > Heard);
    m_server.hang();
    QElapsedTimer time;
    time.start();
    m_tone->stop();
    QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
}

QTEST_GUILESS_MAIN(TestAlarmTone)
#include "tst_alarmtone.moc"
