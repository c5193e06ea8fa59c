// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/desktopsetting.h"
#include "platform/locale/locale.h"
#include "tests/support/answersfirst.h"
#include "tests/support/privatebus.h"
#include "tests/support/settingsportal.h"

#include <memory>
#include <optional>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QThread>

using Touch::Locale;

namespace {

const auto portalName = u"org.freedesktop.portal.Desktop"_qs;
const auto desktop = u"org.gnome.desktop.interface"_qs;
const auto clockFormat = u"clock-format"_qs;
const QDateTime afternoon(QDate(2026, 3, 9), QTime(13, 5));

QString time()
{
    return Locale::getDefault().formatDateTime(afternoon, Locale::DateNone, Locale::TimeShort);
}

} // namespace

class TestDesktopSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesTheDesktopsHoursOnceThePortalIsThere();
    void tellsEachChangeOnce();
    void asksAPortalThatStartsAgain();
    void theFileWins();
    void anAnswerIsOlderThanTheChangesBehindIt();

private:
    static QDBusMessage read(const QString &group, const QString &key);
    static bool write(const QByteArray &settings);

    Support::PrivateBus m_bus;
    std::unique_ptr<Support::SettingsPortal> m_portal;
};

QDBusMessage TestDesktopSettings::read(const QString &group, const QString &key)
{
    auto result = QDBusMessage::createMethodCall(portalName, u"/org/freedesktop/portal/desktop"_qs,
                                                 u"org.freedesktop.portal.Settings"_qs, u"Read"_qs);
    result << group << key;
    return result;
}

bool TestDesktopSettings::write(const QByteArray &settings)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo";
    QFile file(folder + "/Locale.conf");
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(settings) == settings.size();
}

void TestDesktopSettings::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Locale::setDefault(Locale(u"de_DE"_qs));
    Locale::getDefault().connectSettings();
    m_portal = std::make_unique<Support::SettingsPortal>(
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_qs));
    m_portal->set(desktop, clockFormat, u"12h"_qs);
}

void TestDesktopSettings::takesTheDesktopsHoursOnceThePortalIsThere()
{
    QCOMPARE(time(), u"13:05"_qs);
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    QVERIFY(m_portal->start());
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"1:05\u202FPM"_qs);
    QCOMPARE(m_portal->timesAsked(desktop, clockFormat), 1);
    QCOMPARE(spy.count(), 1);
}

void TestDesktopSettings::tellsEachChangeOnce()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    m_portal->set(desktop, clockFormat, u"24h"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"13:05"_qs);
    QCOMPARE(Locale().timeFormat24h(), Locale::TwentyFourHour);
    // No change, or of something else: only the last one counts.
    m_portal->set(desktop, clockFormat, u"24h"_qs);
    m_portal->set(desktop, u"clock-show-seconds"_qs, u"12h"_qs);
    m_portal->set(u"org.example"_qs, clockFormat, u"12h"_qs);
    m_portal->set(desktop, clockFormat, u"12h"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
    // A desktop without an opinion leaves it to the locale.
    m_portal->set(desktop, clockFormat, u"other"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(Locale().timeFormat24h(), Locale::LocaleDefault);
}

void TestDesktopSettings::asksAPortalThatStartsAgain()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    QVERIFY(m_portal->stop());
    QVERIFY(Support::PrivateBus::waitForService(portalName, false));
    m_portal->set(desktop, clockFormat, u"12h"_qs);
    m_portal->setWrapsTwice(false);
    QVERIFY(m_portal->start());
    QVERIFY(spy.wait());
    QCOMPARE(Locale().timeFormat24h(), Locale::TwelveHour);
}

void TestDesktopSettings::theFileWins()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    QVERIFY(write("timeFormat=24\n"));
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"13:05"_qs);
    m_portal->set(desktop, clockFormat, u"other"_qs);
    m_portal->set(desktop, clockFormat, u"12h"_qs);
    // An answer comes after all that the portal has said before.
    const QDBusPendingCallWatcher answer(QDBusConnection::sessionBus().asyncCall(read(u"org.example"_qs, u"key"_qs)));
    QVERIFY(QSignalSpy(&answer, &QDBusPendingCallWatcher::finished).wait());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(time(), u"13:05"_qs);
    // The file leaves it to the desktop again.
    QVERIFY(write("language=de_DE\n"));
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(Locale().timeFormat24h(), Locale::TwelveHour);
}

void TestDesktopSettings::anAnswerIsOlderThanTheChangesBehindIt()
{
    QVERIFY(m_portal->stop());
    QVERIFY(Support::PrivateBus::waitForService(portalName, false));
    auto *portal
        = new Support::SettingsPortal(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"another"_qs));
    portal->set(desktop, clockFormat, u"12h"_qs);
    QThread thread;
    portal->moveToThread(&thread);
    connect(&thread, &QThread::finished, portal, &QObject::deleteLater);
    const auto end = qScopeGuard([&] {
        thread.quit();
        thread.wait();
        QDBusConnection::disconnectFromBus(u"another"_qs);
        QVERIFY(m_portal->start());
    });
    thread.start();
    QMetaObject::invokeMethod(
        portal, [portal] { QVERIFY(portal->start()); }, Qt::BlockingQueuedConnection);

    std::optional<Support::AnswersFirst> busyMachine(std::in_place);
    const Touch::DesktopSetting setting(desktop, clockFormat);
    busyMachine.reset();
    QSignalSpy received(&setting, &Touch::DesktopSetting::received);
    // When a call is answered, all that the portal has said before has come as well.
    QCOMPARE(QDBusConnection::sessionBus().call(read(desktop, clockFormat)).type(), QDBusMessage::ReplyMessage);
    QMetaObject::invokeMethod(
        portal, [portal] { portal->set(desktop, clockFormat, u"24h"_qs); }, Qt::BlockingQueuedConnection);
    QCOMPARE(QDBusConnection::sessionBus().call(read(desktop, clockFormat)).type(), QDBusMessage::ReplyMessage);
    QVERIFY(received.isEmpty());
    QTRY_COMPARE(received.count(), 2);
    QCOMPARE(received[0][0].toString(), u"12h"_qs);
    QCOMPARE(received[1][0].toString(), u"24h"_qs);
}

QTEST_GUILESS_MAIN(TestDesktopSettings)
#include "tst_desktopsettings.moc"
