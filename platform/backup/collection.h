// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/backup/archive.h"
#include "platform/backup/participants.h"

namespace Backup {

inline constexpr auto ToneAttribute = "sound";

enum class OwnTones { Included, LeftOut };

/**
 * What a backup of this moment holds: the daemon's events, the participants'
 * settings, and the user's own tones that these name. What is left out is told
 * on standard error; a settings file that cannot be read is a problem.
 */
Result<Archive> collect(const QList<Participant> &participants, OwnTones ownTones);

} // namespace Backup
