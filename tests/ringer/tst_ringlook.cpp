// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/ringscreen.h"
#include "tests/support/privatebus.h"
#include "tests/support/settingsportal.h"

#include <QApplication>
#include <QTest>

#include <memory>

using namespace RingScreen;

namespace {

int lightnessOfTheGround()
{
    return window() ? window()->viewport()->grab().toImage().pixelColor(2, 2).lightness() : -1;
}

QImage pictureOf(const QString &name)
{
    const QRectF place = item(name)->sceneBoundingRect();
    return window()->viewport()->grab(window()->mapFromScene(place).boundingRect()).toImage();
}

} // namespace

/** The ring screen looks as the user has chosen it for the desktop. */
class TestRingLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void followsLightAndDark();
    void followsTheSizeOfText();

private:
    std::unique_ptr<Support::PrivateBus> m_bus;
    std::unique_ptr<Support::SettingsPortal> m_portal;
    Ringer::RingPlugin *m_plugin = nullptr;
    RecordingAnswers m_answers;
};

void TestRingLook::initTestCase()
{
    qunsetenv("CLOCK_THEME");
    m_bus = std::make_unique<Support::PrivateBus>();
    QVERIFY(m_bus->isRunning());
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    m_portal
        = std::make_unique<Support::SettingsPortal>(QDBusConnection::connectToBus(address, QStringLiteral("portal")));
    QVERIFY(m_portal->start());
    m_portal->setColorScheme(1);
    QString reason;
    m_plugin = load(&reason);
    QVERIFY2(m_plugin, qPrintable(reason));
    m_plugin->setAnswers(&m_answers);
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
}

void TestRingLook::cleanupTestCase()
{
    m_plugin->hide(1);
    QTRY_VERIFY(!window());
    m_portal.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

void TestRingLook::followsLightAndDark()
{
    QTRY_VERIFY(lightnessOfTheGround() >= 0 && lightnessOfTheGround() < 100);
    m_portal->setColorScheme(2);
    QTRY_VERIFY(lightnessOfTheGround() > 155);
}

void TestRingLook::followsTheSizeOfText()
{
    const QImage before = pictureOf("snooze");
    m_portal->setTextScaling(1.5);
    QTRY_VERIFY(pictureOf("snooze") != before);
    m_portal->setTextScaling(1);
    QTRY_COMPARE(pictureOf("snooze"), before);
}

QTEST_MAIN(TestRingLook)
#include "tst_ringlook.moc"
