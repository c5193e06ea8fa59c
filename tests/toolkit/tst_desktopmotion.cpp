// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/motion_p.h"
#include "tests/support/privatebus.h"

#include <memory>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QHash>
#include <QTest>

using namespace Touch;

/** A desktop's settings portal, on a connection of its own. */
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    bool start();
    void set(const QString &group, const QString &key, const QVariant &value);

public slots:
    QDBusVariant Read(const QString &group, const QString &key);

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    QHash<QString, QVariant> m_values{{QStringLiteral("reduced-motion"), 1U},
                                      {QStringLiteral("enable-animations"), true}};
};

namespace {

const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString desktop = QStringLiteral("org.gnome.desktop.interface");

} // namespace

bool FakePortal::start()
{
    return m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots)
        && m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

QDBusVariant FakePortal::Read(const QString &, const QString &key)
{
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_values.value(key))));
}

void FakePortal::set(const QString &group, const QString &key, const QVariant &value)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Settings"),
                                                     QStringLiteral("SettingChanged"));
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    m_bus.send(signal);
}

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
    std::unique_ptr<FakePortal> m_portal;
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
    m_portal = std::make_unique<FakePortal>();
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
