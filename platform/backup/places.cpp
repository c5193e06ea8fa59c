// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/places.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace Backup {

namespace {

const QString ToneFolder("sounds/ring-tones");

struct Place
{
    QString name;
    QString folder;
};

QList<Place> places()
{
    QList<Place> result{
        {"ring-tones", QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + '/' + ToneFolder}};
    // Without a folder for music, the desktop names the whole home.
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    if (!music.isEmpty() && QDir(music) != QDir::home())
        result.append({"music", music});
    return result;
}

/** The path within a folder; empty where it lies elsewhere. */
QString pathWithin(const QString &folder, const QString &file)
{
    const QString path = QDir(folder).relativeFilePath(QDir::cleanPath(file));
    return staysWithin(path) ? path : QString();
}

} // namespace

bool staysWithin(const QString &relativePath)
{
    const QStringList names = relativePath.split('/');
    return std::none_of(names.begin(), names.end(), [](const QString &name) {
        return name.isEmpty() || name == "." || name == ".." || name.contains(QChar(u'\0'));
    });
}

QString settingsPath(const QString &relativePath)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' + relativePath;
}

std::optional<TonePlace> tonePlaceOf(const QString &file)
{
    for (const Place &place : places()) {
        if (const QString path = pathWithin(place.folder, file); !path.isEmpty())
            return TonePlace{place.name, path};
    }
    return std::nullopt;
}

QString toneFileAt(const TonePlace &place)
{
    if (!staysWithin(place.path))
        return {};
    for (const Place &known : places()) {
        if (known.name == place.place)
            return known.folder + '/' + place.path;
    }
    return {};
}

bool isSystemTone(const QString &file)
{
    if (tonePlaceOf(file))
        return false;
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    folders.append("/usr/share");
    return std::any_of(folders.cbegin(), folders.cend(),
                       [&](const QString &folder) { return !pathWithin(folder, file).isEmpty(); });
}

} // namespace Backup
