// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/toneplaces_p.h"

#include "platform/tones/tonefiles.h"

#include <QDir>
#include <QStandardPaths>

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
    const QString user = QDir::home().dirName();
    return places + drivesIn({"/run/media/" + user, "/media/" + user});
}

QList<TonePlace> drivesIn(const QStringList &folders)
{
    QList<TonePlace> drives;
    for (const QString &folder : folders) {
        const QFileInfoList infos = QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &info : infos)
            drives += {info.fileName(), info.absoluteFilePath()};
    }
    return drives;
}
