// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"

#include <memory>
#include <QObject>

namespace Astel::Timed {

class SqliteStore;

struct Settings
{
    QString folder;           ///< of the store
    QString localtime;        ///< the file that tells the time zone
    QString bootFolder;       ///< where clock-rtc finds the next moment to turn the device on for
    QString clocks;           ///< where the kernel shows the hardware clocks
    qint64 ringTime = 120000; ///< milliseconds
};

/** The daemon with all its real parts. It owns them and lives in the main thread. */
class Daemon
{
public:
    /**
     * Opens the store, takes the bus name and goes on with the stored events; fails where another daemon has either,
     * or where the store or the bus cannot be used.
     */
    static Result<std::unique_ptr<Daemon>> create(const Settings &settings);
    ~Daemon();
    Q_DISABLE_COPY(Daemon)

private:
    struct Parts;

    Daemon(const Settings &settings, std::unique_ptr<SqliteStore> store);
    Result<> start();
    void follow();

    std::unique_ptr<SqliteStore> m_store;
    std::unique_ptr<Parts> m_parts;
};

} // namespace Astel::Timed
