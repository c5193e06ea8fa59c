// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonefiles.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <array>

namespace Tones {

QStringList ringToneFolders()
{
    QStringList folders{QStringLiteral("/usr/share/sounds/ring-tones")};
    for (const auto &data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders += data + QLatin1String("/sounds/ring-tones");
    folders.removeDuplicates();
    return folders;
}

QString musicFolder()
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return QDir(folder) == QDir::home() ? QString() : folder;
}

bool isSoundFile(const QString &name)
{
    static constexpr std::array endings{".aac", ".mp3", ".ogg", ".oga", ".opus", ".flac", ".m4a", ".wav"};
    return std::any_of(endings.begin(), endings.end(), [&name](const char *ending) {
        return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    });
}

FileScan scanFolders(const QStringList &folders)
{
    FileScan scan;
    for (const auto &folder : folders) {
        if (!QFileInfo(folder).isDir())
            continue;
        scan.folders += folder;
        QDirIterator each(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (each.hasNext() && !QThread::currentThread()->isInterruptionRequested()) {
            each.next();
            const auto file = each.fileInfo();
            if (file.isDir())
                scan.folders += file.absoluteFilePath();
            else if (isSoundFile(file.fileName()))
                scan.files.insert(file.absoluteFilePath(), {file.lastModified().toSecsSinceEpoch(), file.size()});
        }
    }
    return scan;
}

QString nameFromFile(const QString &path)
{
    auto name = QFileInfo(path).fileName();
    name.truncate(name.contains(QLatin1Char('.')) ? name.lastIndexOf(QLatin1Char('.')) : name.size());
    return name.replace(QLatin1Char('_'), QLatin1Char(' '));
}

bool isNoSound(const QString &path)
{
    return nameFromFile(path) == QLatin1String("No sound");
}

} // namespace Tones
