// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/zonesource.h"

#include <QFileSystemWatcher>

namespace Astel::Timed {

/**
 * The zone of this process: TZ where it is set, otherwise the one that the localtime file links to, followed when the
 * link changes. A file that is a copy has no name; then it is the zone that was told last, or what the
 * system says otherwise. A zone that cannot be read is logged; UTC, or the zone before it, stays in force.
 */
class LocalZone final : public ZoneSource
{
    Q_OBJECT

public:
    explicit LocalZone(const QString &localtime = QStringLiteral("/etc/localtime"));

    const Rules::Zone &zone() const override { return m_zone; }
    /** Somebody says that the zone was set, to this one unless the name is empty. */
    void told(const QByteArray &id);

private:
    std::optional<Rules::Zone> read() const;
    QByteArray name() const;
    void watchCopy();
    void readAgain();

    QString m_localtime;
    QByteArray m_told;
    QFileSystemWatcher m_watcher;
    Rules::Zone m_zone;
};

} // namespace Astel::Timed
