// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/backup/archive.h"
#include "platform/backup/participants.h"

#include <QMap>
#include <QSaveFile>

#include <memory>
#include <vector>

namespace Backup {

/** What a restore did. */
struct Restored
{
    int alarms = 0;
    int present = 0; ///< alarms that were there already, or are over
    int passed = 0;  ///< among the restored: one-time alarms that are switched
                     ///< off, for their time has passed
    int others = 0;  ///< alarms that are here and not in the backup
    int settings = 0;
    int tones = 0;
    QStringList missingTones; ///< files that restored alarms name
};

/**
 * A restore in two steps. prepare() writes every file beside its place, where
 * nobody sees it. commit() stores the events, in one transaction of the daemon,
 * and then gives the files their names. Whatever fails before the events are
 * stored leaves everything as it was.
 */
class Restoration
{
public:
    explicit Restoration(const Archive &archive);
    ~Restoration();
    Q_DISABLE_COPY(Restoration)

    Result<> prepare(const QList<Participant> &participants);
    Result<Restored> commit();

private:
    Result<> prepareTone(const ToneFile &tone);
    Result<> prepareSettings(const SettingsFile &settings, const QList<Participant> &participants);
    Result<> stage(const QString &path, const QByteArray &content);
    Result<> makeFolder(const QString &path);
    QByteArray withTonesOfHere(const QByteArray &settings, const QStringList &toneKeys) const;
    Result<> nameFiles();
    void countAlarms(const QList<uint> &cookies);
    Result<int> countOthers() const;

    Archive m_archive;
    QMap<QString, QString> m_moved; ///< tones that lie elsewhere here
    std::vector<std::unique_ptr<QSaveFile>> m_staged;
    QStringList m_madeFolders;
    Restored m_restored;
};

} // namespace Backup
