// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using Touch::Locale;

/// A desktop's settings portal, on a connection of its own.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    bool start();
    void stop();
    /// Changes a setting and says so.
    void set(const QString &key, const QString &value, const QString &group = u"org.gnome.desktop.interface"_qs);

    QString format = u"12h"_qs;
    bool isDouble = true;
    int asked = 0;

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key);

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_qs);
};

namespace {

const auto portalName = u"org.freedesktop.portal.Desktop"_qs;
const auto portalPath = u"/org/freedesktop/portal/desktop"_qs;
const QDateTime afternoon(QDate(2026, 3, 9), QTime(13, 5));

QString time()
{
    return Locale::getDefault().formatDateTime(afternoon, Locale::DateNone, Locale::TimeShort);
}

} // namespace

bool FakePortal::start()
{
    return m_bus.registerObject(portalPath, this, QDBusConnection::ExportAllSlots) && m_bus.registerService(portalName);
}

void FakePortal::stop()
{
    m_bus.unregisterService(portalName);
    m_bus.unregisterObject(portalPath);
}

QDBusVariant FakePortal::Read(const QString &group, const QString &key)
{
    if (group == u"org.gnome.desktop.interface" && key == u"clock-format")
        ++asked;
    return isDouble ? QDBusVariant(QVariant::fromValue(QDBusVariant(format))) : QDBusVariant(format);
}

void FakePortal::set(const QString &key, const QString &value, const QString &group)
{
    if (key == u"clock-format")
        format = value;
    QDBusMessage signal
        = QDBusMessage::createSignal(portalPath, u"org.freedesktop.portal.Settings"_qs, u"SettingChanged"_qs);
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    m_bus.send(signal);
}

class tst_DesktopSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesTheDesktopsHoursOnceThePortalIsThere();
    void tellsEachChangeOnce();
    void asksAPortalThatStartsAgain();
    void theFileWins();

private:
    static bool write(const QByteArray &settings);

    Support::PrivateBus m_bus;
    FakePortal *m_portal = nullptr;
};

bool tst_DesktopSettings::write(const QByteArray &settings)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo";
    QFile file(folder + "/Locale.conf");
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(settings) == settings.size();
}

void tst_DesktopSettings::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Locale::setDefault(Locale(u"de_DE"_qs));
    Locale::getDefault().connectSettings();
    m_portal = new FakePortal;
    m_portal->setParent(this);
}

void tst_DesktopSettings::takesTheDesktopsHoursOnceThePortalIsThere()
{
    QCOMPARE(time(), u"13:05"_qs);
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    QVERIFY(m_portal->start());
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"1:05\u202FPM"_qs);
    QCOMPARE(m_portal->asked, 1);
    QCOMPARE(spy.count(), 1);
}

void tst_DesktopSettings::tellsEachChangeOnce()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    m_portal->set(u"clock-format"_qs, u"24h"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"13:05"_qs);
    QCOMPARE(Locale().timeFormat24h(), Locale::TwentyFourHour);
    // No change, or of something else: only the last one counts.
    m_portal->set(u"clock-format"_qs, u"24h"_qs);
    m_portal->set(u"clock-show-seconds"_qs, u"12h"_qs);
    m_portal->set(u"clock-format"_qs, u"12h"_qs, u"org.example"_qs);
    m_portal->set(u"clock-format"_qs, u"12h"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
    // A desktop without an opinion leaves it to the locale.
    m_portal->set(u"clock-format"_qs, u"other"_qs);
    QVERIFY(spy.wait());
    QCOMPARE(Locale().timeFormat24h(), Locale::LocaleDefault);
}

void tst_DesktopSettings::asksAPortalThatStartsAgain()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    m_portal->stop();
    QVERIFY(Support::PrivateBus::waitForService(portalName, false));
    m_portal->format = u"12h"_qs;
    m_portal->isDouble = false;
    QVERIFY(m_portal->start());
    QVERIFY(spy.wait());
    QCOMPARE(Locale().timeFormat24h(), Locale::TwelveHour);
}

void tst_DesktopSettings::theFileWins()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    QVERIFY(write("timeFormat=24\n"));
    QVERIFY(spy.wait());
    QCOMPARE(time(), u"13:05"_qs);
    m_portal->set(u"clock-format"_qs, u"other"_qs);
    m_portal->set(u"clock-format"_qs, u"12h"_qs);
    // An answer comes after all that the portal has said before.
    QDBusMessage read
        = QDBusMessage::createMethodCall(portalName, portalPath, u"org.freedesktop.portal.Settings"_qs, u"Read"_qs);
    read << u"org.example"_qs << u"key"_qs;
    const QDBusPendingCallWatcher answer(QDBusConnection::sessionBus().asyncCall(read));
    QVERIFY(QSignalSpy(&answer, &QDBusPendingCallWatcher::finished).wait());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(time(), u"13:05"_qs);
    // The file leaves it to the desktop again.
    QVERIFY(write("language=de_DE\n"));
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(Locale().timeFormat24h(), Locale::TwelveHour);
}

QTEST_GUILESS_MAIN(tst_DesktopSettings)
#include "tst_desktopsettings.moc"
