// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Clock {

/** What the first of the profile's files that names a key says under it; nothing where none does. */
using ProfileReader = std::function<std::optional<QString>(const QStringList &files, const QString &key)>;

/**
 * The alert tone that the sound profile names: the customisation's, if it names one, otherwise the vendor's, otherwise
 * the built-in one. Whether the file exists is not looked at.
 */
QString profileTone(const ProfileReader &read);

} // namespace Clock
