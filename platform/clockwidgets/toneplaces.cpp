// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/toneplaces_p.h"

#include "platform/tones/tonefiles.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

QList<TonePlace> tonePlaces()
{
    QList<TonePlace> places;
    const auto add = [&places](const QString &name, const QString &path) {
        if (!path.isEmpty() && QFileInfo(path).isDir())
            places += {name, path};
    };
    add(qtTrId("qtn_sond_place_music"), Tones::musicFolder());
    // Where there is no such folder, the desktop names the whole home.
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (QDir(downloads) != QDir::home())
        add(qtTrId("qtn_sond_place_downloads"), downloads);
    add(qtTrId("qtn_sond_place_home"), QDir::homePath());
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes) {
        if (volume.isReady() && isMountPointOfDrives(volume.rootPath()))
            add(QFileInfo(volume.rootPath()).fileName(), volume.rootPath());
    }
    return places;
}

bool isMountPointOfDrives(const QString &path)
{
    return path.startsWith(QLatin1String("/media/")) || path.startsWith(QLatin1String("/run/media/"));
}
