// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktoplook.h"
#include "platform/toolkit/theme.h"
#include "tests/support/privatebus.h"
#include "tests/support/settingsportal.h"

#include <QApplication>
#include <QDBusConnection>
#include <QTest>

using Touch::Theme;

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
    std::unique_ptr<Support::SettingsPortal> m_portal;
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
    m_portal
        = std::make_unique<Support::SettingsPortal>(QDBusConnection::connectToBus(address, QStringLiteral("portal")));
    QVERIFY(m_portal->start());
}

void TestDesktopLook::cleanup()
{
    m_portal.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

void TestDesktopLook::takesWhatThePortalSaysAtFirst()
{
    m_portal->setColorScheme(1U);
    m_portal->setTextScaling(1.25);
    QObject owner;
    new Touch::DesktopLook(&owner);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    QTRY_COMPARE(Theme::instance().textScale(), 1.25);
}

void TestDesktopLook::asksAPortalThatStartsLater()
{
    m_portal->setColorScheme(1U);
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
    m_portal->setColorScheme(1U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    m_portal->setColorScheme(2U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Light);
}

void TestDesktopLook::fallsBackToThePalette()
{
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->setColorScheme(1U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Dark);
    m_portal->setColorScheme(0U);
    QTRY_COMPARE(Theme::instance().variant(), Theme::Variant::Light);
}

void TestDesktopLook::followsTheSizeOfText()
{
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->setTextScaling(1.5);
    QTRY_COMPARE(Theme::instance().textScale(), 1.5);
    m_portal->setTextScaling(3.0);
    QTRY_COMPARE(Theme::instance().textScale(), 2.0);
    m_portal->set(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("cursor-size"), 7);
    m_portal->setTextScaling(1.0);
    QTRY_COMPARE(Theme::instance().textScale(), 1.0);
}

void TestDesktopLook::keepsToTheEnvironment()
{
    qputenv("CLOCK_THEME", "light");
    qputenv("CLOCK_TEXT_SCALE", "1.75");
    QObject owner;
    new Touch::DesktopLook(&owner);
    m_portal->setColorScheme(1U);
    m_portal->setTextScaling(1.5);
    QTRY_COMPARE(Theme::instance().textScale(), 1.75);
    QCOMPARE(Theme::instance().variant(), Theme::Variant::Light);
    qunsetenv("CLOCK_THEME");
    qunsetenv("CLOCK_TEXT_SCALE");
}

QTEST_MAIN(TestDesktopLook)
#include "tst_desktoplook.moc"
