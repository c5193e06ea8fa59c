// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <gst/gst.h>

class QString;

namespace Sound {

/**
 * A playbin for the sound of a file, through the filter into the sink, both of which it takes over. Null where
 * GStreamer has none; they are then the caller's still. Needs gst_init().
 */
[[nodiscard]] GstElement *createPlaybin(const QString &path, GstElement *filter, GstElement *sink);

} // namespace Sound
