// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/restoration.h"

#include "platform/backup/collection.h"
#include "platform/backup/daemon.h"
#include "platform/backup/messages.h"
#include "platform/backup/places.h"
#include "platform/timedclient/eventcodec.h"
#include "platform/timedclient/interface.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QTemporaryFile>

#include <algorithm>

namespace Backup {

namespace Wire = Astel::Timed::Wire;

namespace {

bool holds(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == content;
}

} // namespace

Restoration::Restoration(const Archive &archive)
    : m_archive(archive)
{ }

Restoration::~Restoration()
{
    // A staged file that got no name goes with its object. A folder that holds
    // something stays.
    m_staged.clear();
    for (auto folder = m_madeFolders.crbegin(); folder != m_madeFolders.crend(); ++folder)
        QDir().rmdir(*folder);
}

Result<> Restoration::prepare(const QList<Participant> &participants)
{
    Result<> prepared = Done();
    for (const ToneFile &tone : std::as_const(m_archive.tones)) {
        if (prepared = prepareTone(tone); !prepared)
            return prepared;
    }
    for (Wire::Record &record : m_archive.records) {
        const auto tone = record.event.attributes.find(ToneAttribute);
        if (tone != record.event.attributes.end())
            *tone = m_moved.value(*tone, *tone);
    }
    for (const SettingsFile &settings : std::as_const(m_archive.settings)) {
        if (prepared = prepareSettings(settings, participants); !prepared)
            return prepared;
    }
    return prepared;
}

Result<> Restoration::prepareTone(const ToneFile &tone)
{
    const QString path = toneFileAt({tone.place, tone.path});
    if (path.isEmpty()) {
        complain(QStringLiteral("there is no place here for the tone %1, leaving it out").arg(tone.original));
        return Done();
    }
    if (path != tone.original)
        m_moved.insert(tone.original, path);
    if (holds(path, tone.content))
        return Done();
    if (QFileInfo::exists(path)) {
        complain(QStringLiteral("%1 is another file than the tone in the backup, "
                                "leaving it as it is")
                     .arg(path));
        return Done();
    }
    auto staged = stage(path, tone.content);
    m_restored.tones += staged ? 1 : 0;
    return staged;
}

Result<> Restoration::prepareSettings(const SettingsFile &settings, const QList<Participant> &participants)
{
    const auto owner = std::find_if(participants.cbegin(), participants.cend(),
                                    [&](const Participant &known) { return known.settings == settings.path; });
    if (owner == participants.cend()) {
        complain(QStringLiteral("no program here has the settings %1, leaving them out").arg(settings.path));
        return Done();
    }
    const QString path = settingsPath(settings.path);
    const QByteArray content = withTonesOfHere(settings.content, owner->toneKeys);
    if (holds(path, content))
        return Done();
    auto staged = stage(path, content);
    m_restored.settings += staged ? 1 : 0;
    return staged;
}

Result<> Restoration::stage(const QString &path, const QByteArray &content)
{
    if (auto made = makeFolder(QFileInfo(path).path()); !made)
        return made;
    auto file = std::make_unique<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly) || file->write(content) != content.size() || !file->flush())
        return failure(QStringLiteral("%1 cannot be written: %2").arg(path, file->errorString()));
    m_staged.push_back(std::move(file));
    return Done();
}

Result<> Restoration::makeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return Done();
    if (auto made = makeFolder(QFileInfo(path).path()); !made)
        return made;
    if (!QDir().mkdir(path))
        return failure(QStringLiteral("the folder %1 cannot be made").arg(path));
    m_madeFolders.append(path);
    return Done();
}

QByteArray Restoration::withTonesOfHere(const QByteArray &settings, const QStringList &toneKeys) const
{
    QTemporaryFile file;
    if (m_moved.isEmpty() || !file.open() || file.write(settings) != settings.size() || !file.flush())
        return settings;
    QSettings ini(file.fileName(), QSettings::IniFormat);
    bool changed = false;
    for (const QString &key : toneKeys) {
        if (const QString moved = m_moved.value(ini.value(key).toString()); !moved.isEmpty()) {
            ini.setValue(key, moved);
            changed = true;
        }
    }
    ini.sync();
    // What QSettings writes takes the place of the file.
    QFile written(file.fileName());
    return changed && written.open(QIODevice::ReadOnly) ? written.readAll() : settings;
}

Result<Restored> Restoration::commit()
{
    const auto others = countOthers();
    if (!others)
        return others.error();
    m_restored.others = *others;
    Astel::Timed::Interface timed;
    const auto cookies = answerOf(timed.restore_events({m_archive.records}));
    if (!cookies)
        return cookies.error();
    if (const auto named = nameFiles(); !named)
        return named.error();
    countAlarms(*cookies);
    return m_restored;
}

Result<> Restoration::nameFiles()
{
    QStringList failed;
    for (const auto &file : m_staged) {
        if (!file->commit())
            failed.append(QStringLiteral("%1 (%2)").arg(file->fileName(), file->errorString()));
    }
    if (!failed.isEmpty())
        return failure(QStringLiteral("the alarms are restored, but these files are not: %1").arg(failed.join(", ")));
    return Done();
}

Result<int> Restoration::countOthers() const
{
    Astel::Timed::Interface timed;
    const auto here = answerOf(timed.backup_events());
    if (!here)
        return here.error();
    QHash<QString, int> inBackup;
    for (const Wire::Record &record : m_archive.records)
        ++inBackup[Astel::Timed::encodeEvent(record.event)];
    return int(std::count_if(here->records.cbegin(), here->records.cend(), [&](const Wire::Record &record) {
        return inBackup[Astel::Timed::encodeEvent(record.event)]-- <= 0;
    }));
}

void Restoration::countAlarms(const QList<uint> &cookies)
{
    Astel::Timed::Interface timed;
    for (qsizetype i = 0; i < cookies.size(); ++i) {
        if (cookies[i] == 0) {
            ++m_restored.present;
            continue;
        }
        ++m_restored.alarms;
        const Wire::Record &record = m_archive.records.value(i);
        const QString tone = record.event.attributes.value(ToneAttribute);
        if (!tone.isEmpty() && !QFileInfo::exists(tone) && !m_restored.missingTones.contains(tone))
            m_restored.missingTones.append(tone);
        if (record.state != "WAITING" || !(record.event.flags & Wire::SingleShot))
            continue;
        const auto attributes = answerOf(timed.query_attributes(cookies[i]));
        m_restored.passed += attributes && attributes->value("STATE") == "FINISHED" ? 1 : 0;
    }
}

} // namespace Backup
