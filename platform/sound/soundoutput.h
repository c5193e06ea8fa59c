// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <gst/gst.h>

namespace Sound {

/**
 * The way to the loudspeaker, opened: the Pulse or PipeWire server with the role "alarm", at full volume whatever
 * other sounds are set to; without a server whatever GStreamer finds. Null with a reason when nothing can sound.
 * May wait for the server's answer. "choice" counts the ways in that order from 0, then the sound card itself, and
 * begins anew after the last; one that does not open gives way to the next.
 */
[[nodiscard]] GstElement *createSoundOutput(QString *reason, int choice = 0);

/** Closes an output that went into no pipeline. */
void discardSoundOutput(GstElement *output);

} // namespace Sound
