// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/toneprobe.h"

#include "platform/ringer/toneplayer.h"
#include "platform/sound/probe.h"

namespace Ringer {

QString probeTone(const QString &tone)
{
    if (tone == QLatin1String(TonePlayer::Silence))
        return {};
    if (tone == QLatin1String(TonePlayer::Beeps))
        return Sound::probeBeeps().reason;
    return Sound::probeFile(tone).reason;
}

} // namespace Ringer
