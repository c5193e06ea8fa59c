// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/audibility.h"

namespace Sound {

namespace {

// Quieter than this at its loudest counts as silence.
constexpr auto AudiblePeakDb = -45.0;

} // namespace

bool isAudible(const GstStructure *level)
{
    const auto *peaks = static_cast<GValueArray *>(g_value_get_boxed(gst_structure_get_value(level, "peak")));
    for (guint channel = 0; peaks && channel < peaks->n_values; ++channel) {
        if (g_value_get_double(&peaks->values[channel]) > AudiblePeakDb)
            return true;
    }
    return false;
}

} // namespace Sound
