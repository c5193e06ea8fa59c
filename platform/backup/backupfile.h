// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/backup/archive.h"

namespace Backup {

/** Fails where something that is no backup lies there, and would be
 * overwritten. */
Result<> mayBeWritten(const QString &path);
/** As a whole or not at all; for the owner alone. */
Result<> writeBackup(const QString &path, const Archive &archive);
Result<Archive> readBackup(const QString &path);

} // namespace Backup
