// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/collection.h"

#include "platform/backup/daemon.h"
#include "platform/backup/messages.h"
#include "platform/backup/places.h"
#include "platform/timedclient/interface.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace Backup {

namespace {

constexpr qint64 LargestTone = Q_INT64_C(32) * 1024 * 1024;

Result<QList<SettingsFile>> settingsOf(const QList<Participant> &participants)
{
    QList<SettingsFile> result;
    for (const Participant &participant : participants) {
        QFile file(settingsPath(participant.settings));
        if (participant.settings.isEmpty() || !file.exists())
            continue;
        if (!file.open(QIODevice::ReadOnly))
            return failure(QStringLiteral("%1 cannot be read: %2").arg(file.fileName(), file.errorString()));
        result.append({participant.settings, file.readAll()});
    }
    return result;
}

/** The files that alarms and settings name as tones, each once. */
QStringList namedTones(const QList<Astel::Timed::Wire::Record> &records, const QList<Participant> &participants)
{
    QStringList tones;
    for (const auto &record : records)
        tones.append(record.event.attributes.value(ToneAttribute));
    for (const Participant &participant : participants) {
        const QSettings settings(settingsPath(participant.settings), QSettings::IniFormat);
        for (const QString &key : participant.toneKeys)
            tones.append(settings.value(key).toString());
    }
    tones.removeAll(QString());
    tones.removeDuplicates();
    return tones;
}

/** Why a tone is not in the backup; empty where it is, or comes with the
 * system. */
QString addTone(const QString &path, OwnTones ownTones, QList<ToneFile> &tones)
{
    if (isSystemTone(path))
        return {};
    const auto place = tonePlaceOf(path);
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return "there is no such file";
    if (ownTones == OwnTones::LeftOut)
        return "tones are left out";
    if (!place)
        return "it lies neither in the folder of music nor in that of ring tones";
    if (file.size() > LargestTone)
        return "it is larger than 32 MiB";
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    tones.append({path, place->place, place->path, file.readAll()});
    return {};
}

} // namespace

Result<Archive> collect(const QList<Participant> &participants, OwnTones ownTones)
{
    Astel::Timed::Interface timed;
    const auto records = answerOf(timed.backup_events());
    if (!records)
        return records.error();
    const auto settings = settingsOf(participants);
    if (!settings)
        return settings.error();
    Archive archive{QDateTime::currentDateTimeUtc(), records->records, *settings, {}};
    const QStringList named = namedTones(archive.records, participants);
    for (const QString &path : named) {
        if (const QString why = addTone(path, ownTones, archive.tones); !why.isEmpty())
            complain(QStringLiteral("the tone %1 is not in the backup: %2").arg(path, why));
    }
    return archive;
}

} // namespace Backup
