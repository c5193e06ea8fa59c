// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

namespace Ringer {

/** Where the sound server sends what asks for no place of its own. */
struct PulseSink
{
    QString name; ///< as the server describes it to people
    uint volume;  ///< percent at which a tone at full volume is heard
    bool isMuted;
};

/**
 * Asks the Pulse server, or PipeWire in its place; nothing, with a reason, where none answers or it has no way to a
 * loudspeaker. Blocks for two seconds at most; may be called from any thread.
 */
[[nodiscard]] std::optional<PulseSink> defaultPulseSink(QString *reason);

} // namespace Ringer
