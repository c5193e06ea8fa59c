// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <gst/gst.h>

#include <chrono>

namespace Sound {

/** A tone that is not heard by then has failed; the next one can still begin before two seconds have passed. */
inline constexpr std::chrono::milliseconds FirstSoundTime{1500};

/** Whether a message of GStreamer's level element tells of more than silence. */
[[nodiscard]] bool isAudible(const GstStructure *level);

} // namespace Sound
