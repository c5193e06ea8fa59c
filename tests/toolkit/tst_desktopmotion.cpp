// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/motion_p.h"
#include "tests/support/privatebus.h"
#include "tests/support/settingsportal.h"

#include <memory>
#include <QDBusConnection>
#include <QTest>

using namespace Touch;

namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString desktop = QStringLiteral("org.gnome.desktop.interface");

} // namespace

class TestDesktopMotion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void movesWithoutAPortal();
    void asksThePortalThatStarts();
    void followsEitherSetting_data();
    void followsEitherSetting();
    void isOverruledByTheEnvironment();

private:
    Support::PrivateBus m_bus;
    std::unique_ptr<Support::SettingsPortal> m_portal;
};

void TestDesktopMotion::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    qunsetenv("CLOCK_REDUCED_MOTION");
}

void TestDesktopMotion::movesWithoutAPortal()
{
    QVERIFY(!hasReducedMotion());
}

void TestDesktopMotion::asksThePortalThatStarts()
{
    m_portal = std::make_unique<Support::SettingsPortal>(
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal")));
    m_portal->set(appearance, QStringLiteral("reduced-motion"), 1U);
    QVERIFY(m_portal->start());
    QTRY_VERIFY(hasReducedMotion());
    m_portal->set(appearance, QStringLiteral("reduced-motion"), 0U);
    QTRY_VERIFY(!hasReducedMotion());
}

void TestDesktopMotion::followsEitherSetting_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("off");
    QTest::addColumn<QVariant>("on");
    QTest::newRow("all desktops") << appearance << QStringLiteral("reduced-motion") << QVariant(1U) << QVariant(0U);
    QTest::newRow("one desktop") << desktop << QStringLiteral("enable-animations") << QVariant(false) << QVariant(true);
}

void TestDesktopMotion::followsEitherSetting()
{
    QFETCH(QString, group);
    QFETCH(QString, key);
    QFETCH(QVariant, off);
    QFETCH(QVariant, on);
    m_portal->set(group, key, off);
    QTRY_VERIFY(hasReducedMotion());
    m_portal->set(group, key, on);
    QTRY_VERIFY(!hasReducedMotion());
}

void TestDesktopMotion::isOverruledByTheEnvironment()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QVERIFY(hasReducedMotion());
    qunsetenv("CLOCK_REDUCED_MOTION");
    m_portal->set(appearance, QStringLiteral("reduced-motion"), 1U);
    QTRY_VERIFY(hasReducedMotion());
    qputenv("CLOCK_REDUCED_MOTION", "0");
    QVERIFY(!hasReducedMotion());
    qunsetenv("CLOCK_REDUCED_MOTION");
}

QTEST_GUILESS_MAIN(TestDesktopMotion)
#include "tst_desktopmotion.moc"
