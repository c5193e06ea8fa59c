// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/** What ends an alarm for good. */
enum class StopGesture {
    Slide, ///< a knob that is pulled to the other end
    Hold,  ///< a button that is held for a moment
};

/**
 * The user's choice: "gesture" in the group "Stop" of ringer.conf in the configuration folder, "slide" or "hold"; slide
 * where it says nothing of the kind.
 */
[[nodiscard]] StopGesture chosenStopGesture();
