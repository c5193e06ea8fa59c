// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/localzone.h"

#include "platform/timed/logging.h"

#include <ctime>
#include <QFileInfo>

namespace Astel::Timed {

LocalZone::LocalZone(const QString &localtime)
    : m_localtime(localtime)
    , m_zone(*Rules::Zone::create("UTC"))
{
    // The link is replaced, not written, so its folder is watched.
    m_watcher.addPath(QFileInfo(localtime).absolutePath());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &LocalZone::readAgain);
    if (const auto zone = read())
        m_zone = *zone;
}

std::optional<Rules::Zone> LocalZone::read() const
{
    static constexpr auto marker = "/zoneinfo/";
    const QString target = QFileInfo(m_localtime).symLinkTarget();
    const auto position = target.lastIndexOf(QLatin1String(marker));
    QString error;
    auto zone = position < 0 || qEnvironmentVariableIsSet("TZ")
        ? Rules::Zone::local(&error)
        : Rules::Zone::create(target.mid(position + qstrlen(marker)).toUtf8(), &error);
    if (!zone)
        qCWarning(lcTimed, "%ls, keeping %s", qUtf16Printable(error), m_zone.id().constData());
    return zone;
}

void LocalZone::readAgain()
{
    const auto zone = read();
    if (!zone || zone->id() == m_zone.id())
        return;
    tzset();
    m_zone = *zone;
    emit changed();
}

} // namespace Astel::Timed
