// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

namespace Backup {

/** Whether a path, taken from a folder, leads to a file within that folder. */
bool staysWithin(const QString &relativePath);

/** Where a settings file lies. */
QString settingsPath(const QString &relativePath);

/** A tone of the user's own: in "music" or in "ring-tones", the folders in
 * which tones are looked for. */
struct TonePlace
{
    QString place;
    QString path; ///< within the place
};

/** Nothing where the file lies elsewhere. */
std::optional<TonePlace> tonePlaceOf(const QString &file);
/** The file at a place; empty where there is no such place here, or the path
 * leads out of it. */
QString toneFileAt(const TonePlace &place);
/** Whether the file came with the system, and is not the user's own. */
bool isSystemTone(const QString &file);

} // namespace Backup
