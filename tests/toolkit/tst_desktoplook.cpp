// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktoplook.h"
#include "platform/toolkit/theme.h"
#include "tests/support/privatebus.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTest>

using Touch::Theme;

namespace {

/** The desktop's settings portal, as far as it is asked. */
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit Portal(const QDBusConnection &bus)
        : m_bus(bus)
    { }

    bool start()
    {
        return m_bus.registerObject("/org/freedesktop/portal/desktop", this,
                                    QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
            && m_bus.registerService("org.freedesktop.portal.Desktop");
    }

    bool stop()
    {
        m_bus.unregisterObject("/org/freedesktop/portal/desktop");
        return m_bus.unregisterService("org.freedesktop.portal.Desktop");
    }

    void set(const QString &group, const QString &key, const QVariant &value)
    {
        m_values[group + key] = value;
        emit SettingChanged(group, key, QDBusVariant(value));
    }

public slots:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        if (!m_values.contains(group + key)) {
            sendErrorReply("org.freedesktop.portal.Error.NotFound", "Requested setting not found");
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(m_values[group + key])));
    }

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
    QHash<QString, QVariant> m_values;
};

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");
const auto desktopInterface = QStringLiteral("org.gnome.desktop.interface");
const auto textScaling = QStringLiteral("text-scaling-factor");

} // namespace

class TestDesktopLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void takesWhatThePortalSaysAtFirst();
    void asksAPortalThatStartsLater();
    void followsLightAndDark();
    void fallsBackToThePalette();
    void followsTheSizeOfText();
    void keepsToTheEnvironment();

private:
    std::unique_ptr<Support::PrivateBus> m_bus;
    std::unique_ptr<Portal> m_portal;
};

void TestDesktopLook::initTestCase()
{
    qunsetenv("CLOCK_THEME");
    m_bus = std::make_unique<Support::PrivateBus>();
    QVERIFY(m_bus->isRunning());
}

void TestDesktopLook::init()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    QApplication::setPalette(palette);
    Theme::instance().setDesktopVariant({});
    Theme::instance().setTextScale(1);
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    m_portal = std::make_unique<Portal>(QDBusConnection::connectToBus(address, QStringLiteral("portal")));
    QVERIFY(m_portal->start());
}

void TestDesktopLook::cleanup()
{
    m_portal.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

void TestDesktopLook::takesWhatThePortalSaysAtFirst()
{
    m_portal->set(appearance, colorScheme, 1U);
    m_portal->set(desktopInterface, textScaling, 1.25);
    QObject owner;
    new Touch::DesktopLook(&owner);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    QTRY_COMPARE(Theme::instance().textScale(), 1.25);
}

void TestDesktopLook::asksAPortalThatStartsLater()
{
    m_portal->set(appearance, colorScheme, 1U);
    QVERIFY(m_portal->stop());
    QObject owner;
    new Touch::DesktopLook(&owner);
    QVERIFY(m_portal->start());
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
}

void TestDesktopLook::followsLightAndDark()
{
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->set(appearance, colorScheme, 1U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    m_portal->set(appearance, colorScheme, 2U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Light);
}

void TestDesktopLook::fallsBackToThePalette()
{
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->set(appearance, colorScheme, 1U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    m_portal->set(appearance, colorScheme, 0U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Light);
}

void TestDesktopLook::followsTheSizeOfText()
{
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->set(desktopInterface, textScaling, 1.5);
    QTRY_COMPARE(Theme::instance().textScale(), 1.5);
    m_portal->set(desktopInterface, textScaling, 3.0);
    QTRY_COMPARE(Theme::instance().textScale(), 2.0);
    m_portal->set(desktopInterface, QStringLiteral("cursor-size"), 7);
    m_portal->set(desktopInterface, textScaling, 1.0);
    QTRY_COMPARE(Theme::instance().textScale(), 1.0);
}

void TestDesktopLook::keepsToTheEnvironment()
{
    qputenv("CLOCK_THEME", "light");
    qputenv("CLOCK_TEXT_SCALE", "1.75");
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->set(appearance, colorScheme, 1U);
    m_portal->set(desktopInterface, textScaling, 1.5);
    QTRY_COMPARE(Theme::instance().textScale(), 1.75);
    QCOMPARE(Theme::instance().variant(), Theme::Variant::Light);
    qunsetenv("CLOCK_THEME");
    qunsetenv("CLOCK_TEXT_SCALE");
}

QTEST_MAIN(TestDesktopLook)
#include "tst_desktoplook.moc"
