// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"

#include <optional>

namespace Astel::Timed::Disk {

/** Returns when the file, and its name in its folder, have reached the disk; a file that is not there is ignored. */
void sync(const QString &path);
/** Gives a file on the disk another name, in place of whatever has that name, in one step. */
Result<> replace(const QString &from, const QString &to);
/** The bytes that the user may still write where the file lies; nothing where the system does not say. */
std::optional<qint64> room(const QString &path);

} // namespace Astel::Timed::Disk
