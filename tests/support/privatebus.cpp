// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/privatebus.h"

#include "platform/timedclient/wire.h"
#include "tests/support/places.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QTest>

namespace Support {

PrivateBus::PrivateBus(const QString &serviceFolder)
{
    // The standard configuration without its service folders: nothing of the host can be activated.
    QFile configuration(m_folder.filePath("bus.conf"));
    if (!configuration.open(QIODevice::WriteOnly))
        return;
    const QString services = serviceFolder.isEmpty() ? QString() : "<servicedir>" + serviceFolder + "</servicedir>";
    configuration.write(QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen>%2"
                                       "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                       "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>")
                            .arg(m_folder.path(), services)
                            .toUtf8());
    configuration.close();
    m_process.start("dbus-daemon", {"--config-file=" + configuration.fileName(), "--nofork", "--print-address"});
    if (m_process.waitForStarted() && m_process.waitForReadyRead(5000))
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_process.readAllStandardOutput().trimmed());
}

PrivateBus::~PrivateBus()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool PrivateBus::isRunning() const
{
    return m_process.state() == QProcess::Running && QDBusConnection::sessionBus().isConnected();
}

bool PrivateBus::waitForService(const QString &service, bool present, int milliseconds)
{
    return QTest::qWaitFor(
        [&] {
            const bool owned = QDBusConnection::sessionBus().interface()->isServiceRegistered(service);
            return owned == present;
        },
        milliseconds);
}

TimedProcess::TimedProcess(const QStringList &environment)
    : m_environment(environment)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
}

TimedProcess::~TimedProcess()
{
    kill();
}

bool TimedProcess::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &entry : std::as_const(m_environment))
        environment.insert(entry.section('=', 0, 0), entry.section('=', 1));
    m_process.setProcessEnvironment(environment);
    m_process.start(Places::program("timed"), QStringList());
    return m_process.waitForStarted() && PrivateBus::waitForService(Astel::Timed::Wire::Service, true, 20000);
}

void TimedProcess::terminate()
{
    m_process.terminate();
    m_process.waitForFinished();
}

void TimedProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
    PrivateBus::waitForService(Astel::Timed::Wire::Service, false);
}

qint64 TimedProcess::processId() const
{
    return m_process.processId();
}

} // namespace Support
