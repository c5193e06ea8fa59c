// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/result.h"
#include "platform/timedclient/wire.h"

#include <QDateTime>

namespace Backup {

/** A settings file, named by its path below the folder of settings. */
struct SettingsFile
{
    QString path;
    QByteArray content;

    bool operator==(const SettingsFile &) const = default;
};

/** A tone of the user's own. */
struct ToneFile
{
    QString original; ///< the absolute path by which alarms name it
    QString place;    ///< the kind of folder it lay in
    QString path;     ///< within that folder
    QByteArray content;

    bool operator==(const ToneFile &) const = default;
};

/** Everything that is in a backup. */
struct Archive
{
    QDateTime created;
    QList<Astel::Timed::Wire::Record> records;
    QList<SettingsFile> settings;
    QList<ToneFile> tones;

    bool operator==(const Archive &) const = default;
};

/** As the bytes of a file; docs/backup.md describes them. */
QByteArray encode(const Archive &archive);
/** From the bytes of a file, every one of which has been checked; the problem
 * tells what is wrong with them. */
Result<Archive> decode(const QByteArray &bytes);

} // namespace Backup
