// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QStringList>

namespace Tones {

/** How one tells whether a file is still the one that was read. */
struct FileState
{
    qint64 modified = 0; ///< seconds since the epoch
    qint64 size = 0;

    bool operator==(const FileState &other) const = default;
};

/** Files by absolute path, and the folders in which they were looked for. */
struct FileScan
{
    QHash<QString, FileState> files;
    QStringList folders;
};

/** Where tones lie: the system's folder, and "sounds/ring-tones" under each data folder. They need not exist. */
[[nodiscard]] QStringList ringToneFolders();
/** The user's own music; empty where there is no folder for it, for which the desktop names the whole home. */
[[nodiscard]] QString musicFolder();

/** Whether the name is that of a sound file. */
[[nodiscard]] bool isSoundFile(const QString &name);
/** All sound files below the folders; stops short when the thread is asked to. From any thread. */
[[nodiscard]] FileScan scanFolders(const QStringList &folders);

/** A name for a tone without a title, from its file: "Morning bell" for "…/Morning_bell.aac". */
[[nodiscard]] QString nameFromFile(const QString &path);

/** The tone for those who want none: its file is called "No sound", and is silent. */
[[nodiscard]] bool isNoSound(const QString &path);

} // namespace Tones
