// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/playbin.h"

#include <QUrl>

GstElement *Sound::createPlaybin(const QString &path, GstElement *filter, GstElement *sink)
{
    auto *playbin = gst_element_factory_make("playbin", nullptr);
    if (!playbin)
        return nullptr;
    // Audio only: a cover picture must not open a window.
    gst_util_set_object_arg(G_OBJECT(playbin), "flags", "audio");
    g_object_set(playbin, "uri", QUrl::fromLocalFile(path).toEncoded().constData(), "audio-filter", filter,
                 "audio-sink", sink, nullptr);
    return playbin;
}
