// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringcontroller.h"

#include "platform/ringer/pluginloader.h"
#include "tests/ringer/fakes.h"
#include "tests/support/logcapture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPluginLoader>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <memory>

using Astel::Timed::Wire::Event;
using Ringer::RingController;
using Ringer::TonePlayer;

namespace {

constexpr quint64 Due = Q_UINT64_C(1774747800'000'000'000);

Event teaTime(const QString &plugin = QStringLiteral("librecording"))
{
    Event event;
    event.attributes = {{"TITLE", "Tea"}, {"sound", "/tones/tea.aac"}, {"PLUGIN", plugin}};
    event.buttons = {{0, {}}, {600, {}}};
    event.timeoutSnooze = 300;
    return event;
}

QWidget *plainScreen()
{
    for (auto *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("Ringer::PlainScreen") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

class TestRingController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void ringsOnTheScreenAndIsHeard();
    void thePluginLearnsWhatRings();
    void theSameCookieIsOneRing();
    void askedAgainReportsAgain();
    void stopEndsTheRing();
    void twoAlarmsAreAnsweredOneByOne();
    void snoozeIsSilentAtOnceAndTold();
    void anAnswerIsGivenOnce();
    void aSecondTapSparesTheNextAlarm();
    void aTapForAnAlarmThatJustEndedSparesTheNext();
    void anAlarmThatJustBeganIsAnsweredAtOnce();
    void aSnoozeThatFailsRingsAgain();
    void aLateConfirmationLeavesANewRingAlone();
    void aToneThatFailsIsFollowedByTheNext();
    void soundThatBreaksOffGoesOnWithTheNextTone();
    void withoutAnySoundItTriesAgain();
    void anAlarmWithoutAPluginOfOursRingsPlainly_data();
    void anAlarmWithoutAPluginOfOursRingsPlainly();
    void thePlainScreenAnswers();
    void idleFollowsTheRings();

private:
    [[nodiscard]] QVariantList shown() const { return m_plugin->property("alarms").toList(); }
    void pressSnooze(uint cookie, int seconds);
    void pressStop(uint cookie);

    QTemporaryDir m_profiles;
    QObject *m_plugin = nullptr;
    std::unique_ptr<FakeDaemon> m_daemon;
    std::unique_ptr<FakePlayer> m_player;
    std::unique_ptr<Ringer::PluginLoader> m_loader;
    std::unique_ptr<RingController> m_controller;
};

void TestRingController::initTestCase()
{
    QPluginLoader loader(QStringLiteral(TEST_PLUGIN_DIR "/librecording.so"));
    m_plugin = loader.instance();
    QVERIFY2(m_plugin, qPrintable(loader.errorString()));
}

void TestRingController::init()
{
    m_daemon = std::make_unique<FakeDaemon>();
    m_player = std::make_unique<FakePlayer>();
    m_loader = std::make_unique<Ringer::PluginLoader>(QStringLiteral(TEST_PLUGIN_DIR));
    m_controller = std::make_unique<RingController>(m_daemon.get(), m_player.get(), m_loader.get(),
                                                    Ringer::ToneOrder(m_profiles.path()));
}

void TestRingController::cleanup()
{
    m_controller.reset();
    QVERIFY(shown().isEmpty());
    QCOMPARE(m_player->tone, QString());
    m_loader.reset();
}

void TestRingController::pressSnooze(uint cookie, int seconds)
{
    QVERIFY(QMetaObject::invokeMethod(m_plugin, "pressSnooze", Q_ARG(uint, cookie), Q_ARG(int, seconds)));
}

void TestRingController::pressStop(uint cookie)
{
    QVERIFY(QMetaObject::invokeMethod(m_plugin, "pressStop", Q_ARG(uint, cookie)));
}

void TestRingController::ringsOnTheScreenAndIsHeard()
{
    m_controller->ring(7, teaTime(), Due);
    QCOMPARE(m_daemon->calls, QStringList("rings 7"));
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));
    m_player->becomeAudible();
    QCOMPARE(m_daemon->calls.last(), QString("sounds 7 /tones/tea.aac"));
}

void TestRingController::thePluginLearnsWhatRings()
{
    m_controller->ring(7, teaTime(), Due);
    const QVariantList expected{7u, "Tea", QDateTime::fromSecsSinceEpoch(1774747800, Qt::UTC), "/tones/tea.aac", 600};
    QCOMPARE(shown().value(0).toList(), expected);

    auto without = teaTime();
    without.buttons.clear();
    m_controller->ring(8, without, Due);
    QCOMPARE(shown().value(1).toList().last().toInt(), 300);

    without.timeoutSnooze = 0;
    m_controller->ring(9, without, Due);
    QCOMPARE(shown().value(2).toList().last().toInt(), 0);
}

void TestRingController::theSameCookieIsOneRing()
{
    m_controller->ring(7, teaTime(), Due);
    m_player->becomeAudible();
    m_controller->ring(7, teaTime(), Due);
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_player->plays, 1);
    m_controller->stop(7);
    QCOMPARE(shown().size(), 0);
}

void TestRingController::askedAgainReportsAgain()
{
    m_controller->ring(7, teaTime(), Due);
    m_player->becomeAudible();
    m_daemon->calls.clear();
    m_controller->ring(7, teaTime(), Due);
    QCOMPARE(m_daemon->calls, QStringList({"rings 7", "sounds 7 /tones/tea.aac"}));
}

void TestRingController::stopEndsTheRing()
{
    m_controller->ring(7, teaTime(), Due);
    m_daemon->calls.clear();
    m_controller->stop(7);
    m_controller->stop(8);
    QCOMPARE(m_player->tone, QString());
    QVERIFY(shown().isEmpty());
    QVERIFY(m_daemon->calls.isEmpty());
}

void TestRingController::twoAlarmsAreAnsweredOneByOne()
{
    m_controller->ring(7, teaTime(), Due);
    m_player->becomeAudible();
    auto second = teaTime();
    second.attributes["sound"] = "/tones/egg.aac";
    m_controller->ring(8, second, Due);
    QCOMPARE(shown().size(), 2);
    QVERIFY(m_daemon->calls.contains("rings 8"));
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));

    pressStop(7);
    QCOMPARE(m_daemon->calls.last(), QString("dismiss 7 librecording"));
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_player->tone, QString("/tones/egg.aac"));
    m_player->becomeAudible();
    QCOMPARE(m_daemon->calls.last(), QString("sounds 8 /tones/egg.aac"));

    emit m_daemon->answered(7);
    QCOMPARE(m_player->tone, QString("/tones/egg.aac"));
}

void TestRingController::snoozeIsSilentAtOnceAndTold()
{
    m_controller->ring(7, teaTime(), Due);
    pressSnooze(7, 600);
    QCOMPARE(m_daemon->calls.last(), QString("snooze 7 600 librecording"));
    QCOMPARE(m_player->tone, QString());
    QVERIFY(shown().isEmpty());
}

void TestRingController::anAnswerIsGivenOnce()
{
    m_controller->ring(7, teaTime(), Due);
    pressSnooze(7, 0);
    QCOMPARE(m_daemon->calls, QStringList("rings 7"));
    pressSnooze(7, 600);
    pressSnooze(7, 600);
    pressStop(7);
    pressStop(99);
    QCOMPARE(m_daemon->calls, QStringList({"rings 7", "snooze 7 600 librecording"}));
}

void TestRingController::aSecondTapSparesTheNextAlarm()
{
    m_controller->ring(7, teaTime(), Due);
    m_controller->ring(8, teaTime(), Due);
    pressStop(7);
    pressStop(8);
    pressSnooze(8, 600);
    QCOMPARE(m_daemon->calls, QStringList({"rings 7", "rings 8", "dismiss 7 librecording"}));
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));

    // A tap that was meant for it, a moment later.
    QElapsedTimer time;
    time.start();
    QVERIFY(QTest::qWaitFor([this] {
        pressStop(8);
        return m_daemon->calls.last() == "dismiss 8 librecording";
    }));
    QVERIFY2(time.elapsed() > 400 && time.elapsed() < 2500, qPrintable(QString::number(time.elapsed())));
}

void TestRingController::aTapForAnAlarmThatJustEndedSparesTheNext()
{
    m_controller->ring(7, teaTime(), Due);
    m_controller->ring(8, teaTime(), Due);
    m_controller->stop(7);
    pressStop(8);
    QCOMPARE(m_daemon->calls, QStringList({"rings 7", "rings 8"}));

    // Also where the next one only comes after it.
    m_controller->stop(8);
    m_controller->ring(9, teaTime(), Due);
    pressStop(9);
    QCOMPARE(m_daemon->calls.last(), QString("rings 9"));
}

void TestRingController::anAlarmThatJustBeganIsAnsweredAtOnce()
{
    m_controller->ring(7, teaTime(), Due);
    m_controller->ring(8, teaTime(), Due);
    // One behind the front goes: nothing comes up under the finger.
    m_controller->stop(8);
    pressStop(7);
    QCOMPARE(m_daemon->calls.last(), QString("dismiss 7 librecording"));
}

void TestRingController::aSnoozeThatFailsRingsAgain()
{
    Support::LogCapture log;
    m_controller->ring(7, teaTime(), Due);
    pressSnooze(7, 600);
    emit m_daemon->snoozeFailed(7, "disk full");
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));
    QTRY_VERIFY((pressSnooze(7, 600), shown().isEmpty()));
    emit m_daemon->answered(7);
    QVERIFY(m_controller->isIdle());
}

void TestRingController::aLateConfirmationLeavesANewRingAlone()
{
    m_controller->ring(7, teaTime(), Due);
    pressSnooze(7, 1);
    m_controller->ring(7, teaTime(), Due);
    emit m_daemon->answered(7);
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));
}

void TestRingController::aToneThatFailsIsFollowedByTheNext()
{
    Support::LogCapture log;
    QFile profile(m_profiles.filePath("93.korvo.ini"));
    QVERIFY(profile.open(QIODevice::WriteOnly));
    profile.write("[fallback]\nclock.alert.tone=/tones/default.aac\n");
    profile.close();

    m_controller->ring(7, teaTime(), Due);
    QStringList tones{m_player->tone};
    while (m_player->tone != QLatin1String(TonePlayer::Beeps)) {
        m_player->fail();
        tones += m_player->tone;
        QVERIFY(tones.size() < 10);
    }
    profile.remove();
    QCOMPARE(tones.first(), QString("/tones/tea.aac"));
    QCOMPARE(tones.value(1), QString("/tones/default.aac"));
    QVERIFY(tones.value(2).endsWith("sounds/ring-tones/Clock alert 1.aac"));
    m_player->becomeAudible();
    QCOMPARE(m_daemon->calls.last(), QString("sounds 7 beeps"));
}

void TestRingController::soundThatBreaksOffGoesOnWithTheNextTone()
{
    Support::LogCapture log;
    m_controller->ring(7, teaTime(), Due);
    m_player->becomeAudible();
    m_player->fail();
    QVERIFY(!m_player->tone.isEmpty());
    QVERIFY(m_player->tone != "/tones/tea.aac");
}

void TestRingController::withoutAnySoundItTriesAgain()
{
    Support::LogCapture log;
    m_controller->ring(7, teaTime(), Due);
    while (m_player->tone != QLatin1String(TonePlayer::Beeps))
        m_player->fail();
    QCOMPARE(m_player->round, 0);
    m_player->fail();
    QCOMPARE(shown().size(), 1);
    QCOMPARE(m_daemon->calls.last(), QString("impaired 7 Nothing can be heard: test"));
    QTRY_COMPARE(m_player->tone, QString("/tones/tea.aac"));
    QCOMPARE(m_player->round, 1);
    // Told once.
    const auto calls = m_daemon->calls;
    m_player->fail();
    while (m_player->tone != QLatin1String(TonePlayer::Beeps))
        m_player->fail();
    m_player->fail();
    QCOMPARE(m_daemon->calls, calls);
}

void TestRingController::anAlarmWithoutAPluginOfOursRingsPlainly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none named") << QString();
    QTest::newRow("not there") << "libmissing";
    QTest::newRow("a path out of the folder") << "../ringer-plugins/librecording";
    QTest::newRow("an absolute path") << TEST_PLUGIN_DIR "/librecording";
    QTest::newRow("another version of the interface") << "liboutdated";
}

void TestRingController::anAlarmWithoutAPluginOfOursRingsPlainly()
{
    QFETCH(QString, name);
    Support::LogCapture log;
    m_controller->ring(7, teaTime(name), Due);
    QVERIFY(shown().isEmpty());
    QVERIFY(plainScreen());
    QCOMPARE(m_daemon->calls.size(), 2);
    QVERIFY(m_daemon->calls.contains("rings 7"));
    QVERIFY(m_daemon->calls.first().startsWith(QStringLiteral("impaired 7 No plug-in \"%1\"").arg(name)));
    QCOMPARE(m_player->tone, QString("/tones/tea.aac"));
    QVERIFY(log.lines().join(QLatin1Char('\n')).contains(QStringLiteral("No plug-in \"%1\"").arg(name)));
}

void TestRingController::thePlainScreenAnswers()
{
    Support::LogCapture log;
    m_controller->ring(7, teaTime("libmissing"), Due);
    m_controller->ring(8, teaTime("libmissing"), Due);
    auto *screen = plainScreen();
    QVERIFY(screen);
    QTest::mouseClick(screen->findChild<QWidget *>("snooze"), Qt::LeftButton);
    QCOMPARE(m_daemon->calls.last(), QString("snooze 7 600 plain screen"));
    QVERIFY(plainScreen());
    QTRY_VERIFY((QTest::mouseClick(screen->findChild<QWidget *>("stop"), Qt::LeftButton), !plainScreen()));
    QCOMPARE(m_daemon->calls.last(), QString("dismiss 8 plain screen"));
}

void TestRingController::idleFollowsTheRings()
{
    QSignalSpy idle(m_controller.get(), &RingController::idleChanged);
    QVERIFY(m_controller->isIdle());
    m_controller->ring(7, teaTime(), Due);
    QCOMPARE(idle.last().first().toBool(), false);
    pressStop(7);
    QVERIFY(!m_controller->isIdle());
    emit m_daemon->answered(7);
    QCOMPARE(idle.last().first().toBool(), true);
}

QTEST_MAIN(TestRingController)
#include "tst_ringcontroller.moc"
