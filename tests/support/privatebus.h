// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace Support {

/**
 * A session bus for one test program, gone with the object. Create it in main() or initTestCase(), before the first
 * use of QDBusConnection::sessionBus(): it sets DBUS_SESSION_BUS_ADDRESS for this process and its children.
 * Nothing of the host is D-Bus activated on it: a test starts what it needs, or names a folder of service files.
 */
class PrivateBus
{
public:
    explicit PrivateBus(const QString &serviceFolder = {});
    ~PrivateBus();

    /** Whether the bus came up; a test asks before it goes on. */
    bool isRunning() const;

    /** Waits until a service has an owner (or none); false after the time in milliseconds. */
    static bool waitForService(const QString &service, bool present = true, int milliseconds = 5000);

private:
    QTemporaryDir m_folder;
    QProcess m_process;
};

/**
 * The real alarm daemon, run from the build folder on the bus of this process. Its store is the one in XDG_DATA_HOME.
 * Started and stopped at will; killed with the object.
 */
class TimedProcess
{
public:
    explicit TimedProcess(const QStringList &environment = {});
    ~TimedProcess();

    bool start();     ///< true once the daemon owns its name
    void terminate(); ///< SIGTERM, and waits for the end
    void kill();      ///< SIGKILL, and waits for the end and for the name to go
    qint64 processId() const;

private:
    QStringList m_environment; ///< "NAME=value", added to this process's own
    QProcess m_process;
};

} // namespace Support
