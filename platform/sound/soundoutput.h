// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <gst/gst.h>

namespace Sound {

/** Which output a tone takes. */
struct OutputChoice
{
    /** Counts the ways from 0: the Pulse or PipeWire server, whatever GStreamer finds, the sound card itself, ALSA's
     *  default; begins anew after the last. One that does not open gives way to the next, and where the server hangs the
     *  card is the only way. */
    int way = 0;
    QString sink; ///< of the server, which is then the only way; empty: its default
};

/**
 * The way to the loudspeaker, opened: with the role "alarm" and at full volume, whatever other sounds are set to. Null
 * with a reason when nothing can sound. May wait for the server's answer.
 */
[[nodiscard]] GstElement *createSoundOutput(QString *reason, const OutputChoice &choice = {});

/** Closes an output that went into no pipeline. */
void discardSoundOutput(GstElement *output);

} // namespace Sound
