// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QStringList>

/// A folder in which one starts to look for a file.
struct TonePlace
{
    QString name; ///< in the user's language
    QString path;
};

/// The user's music and downloads, where there are such folders, the home, and memory cards and drives.
QList<TonePlace> tonePlaces();

/// What lies in the folders where the desktop puts memory cards and drives, by name. Asks no drive anything.
QList<TonePlace> drivesIn(const QStringList &folders);
