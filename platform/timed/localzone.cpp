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
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LocalZone::readAgain);
    watchCopy();
    if (const auto zone = read())
        m_zone = *zone;
}

void LocalZone::told(const QByteArray &id)
{
    m_told = id;
    readAgain();
}

std::optional<Rules::Zone> LocalZone::read() const
{
    QString error;
    const QByteArray id = name();
    auto zone = id.isEmpty() ? Rules::Zone::local(&error) : Rules::Zone::create(id, &error);
    if (!zone)
        qCWarning(lcTimed, "%ls, keeping %s", qUtf16Printable(error), m_zone.id().constData());
    return zone;
}

QByteArray LocalZone::name() const
{
    static constexpr auto marker = "/zoneinfo/";
    if (qEnvironmentVariableIsSet("TZ"))
        return {};
    const QString target = QFileInfo(m_localtime).symLinkTarget();
    const auto position = target.lastIndexOf(QLatin1String(marker));
    return position < 0 ? m_told : target.mid(position + qstrlen(marker)).toUtf8();
}

void LocalZone::watchCopy()
{
    // A copy is written over, which does not change its folder.
    const QFileInfo file(m_localtime);
    if (file.isFile() && !file.isSymLink())
        m_watcher.addPath(m_localtime);
}

void LocalZone::readAgain()
{
    watchCopy();
    const auto zone = read();
    if (!zone || zone->id() == m_zone.id())
        return;
    tzset();
    m_zone = *zone;
    emit changed();
}

} // namespace Astel::Timed
