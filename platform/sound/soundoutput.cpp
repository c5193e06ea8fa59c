// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/soundoutput.h"

#include "platform/sound/pulseserver.h"

#include <array>
#include <chrono>

namespace Sound {

namespace {

// An answer takes some milliseconds; whoever opens a sink of a server that hangs is held up for half a minute.
constexpr std::chrono::milliseconds AnswerTime{700};

GstElement *create(const char *factory)
{
    auto *output = gst_element_factory_make(factory, nullptr);
    if (output)
        gst_object_ref_sink(output);
    return output;
}

GstElement *open(GstElement *output)
{
    if (!output)
        return nullptr;
    if (gst_element_set_state(output, GST_STATE_READY) != GST_STATE_CHANGE_FAILURE)
        return output;
    discardSoundOutput(output);
    return nullptr;
}

GstElement *openPulse(const QString &sink)
{
    auto *output = create("pulsesink");
    if (!output)
        return nullptr;
    if (!sink.isEmpty())
        g_object_set(output, "device", sink.toUtf8().constData(), nullptr);
    auto *role = gst_structure_new("properties", "media.role", G_TYPE_STRING, "alarm", nullptr);
    g_object_set(output, "client-name", "Clock", "stream-properties", role, "volume", 1.0, "mute", FALSE, nullptr);
    gst_structure_free(role);
    return open(output);
}

GstElement *openDefault()
{
    return openPulse({});
}

// With no device at all the automatic output takes a sink that swallows every sound.
bool swallows(GstElement *automatic)
{
    auto *children = gst_bin_iterate_sinks(GST_BIN(automatic));
    GValue child = G_VALUE_INIT;
    auto found = false;
    while (!found && gst_iterator_next(children, &child) == GST_ITERATOR_OK) {
        const auto *factory = gst_element_get_factory(GST_ELEMENT(g_value_get_object(&child)));
        found = factory && g_str_has_prefix(GST_OBJECT_NAME(factory), "fake");
        g_value_reset(&child);
    }
    g_value_unset(&child);
    gst_iterator_free(children);
    return found;
}

GstElement *openAutomatic()
{
    auto *automatic = open(create("autoaudiosink"));
    if (!automatic || !swallows(automatic))
        return automatic;
    discardSoundOutput(automatic);
    return nullptr;
}

GstElement *openAlsa(const char *device)
{
    auto *output = create("alsasink");
    if (output)
        g_object_set(output, "device", device, nullptr);
    return open(output);
}

// What ALSA calls its default is often the sound server again.
GstElement *openCard()
{
    return openAlsa("sysdefault");
}

GstElement *openAlsaDefault()
{
    return openAlsa("default");
}

} // namespace

GstElement *createSoundOutput(QString *reason, const OutputChoice &choice)
{
    const auto hangs = PulseServer::hangs(AnswerTime);
    if (!choice.sink.isEmpty()) {
        auto *output = hangs ? nullptr : openPulse(choice.sink);
        if (!output)
            *reason = QStringLiteral("the sink does not open");
        return output;
    }
    constexpr std::array ways{openDefault, openAutomatic, openCard, openAlsaDefault};
    for (std::size_t step = 0; step < ways.size(); ++step) {
        const auto way = ways[(std::size_t(choice.way) + step) % ways.size()];
        // Only the card itself is opened without asking the server.
        if (hangs && way != openCard)
            continue;
        if (auto *output = way())
            return output;
    }
    *reason = hangs ? QStringLiteral("the sound server hangs, and no sound device answers")
                    : QStringLiteral("no sound server and no sound device answers");
    return nullptr;
}

void discardSoundOutput(GstElement *output)
{
    gst_element_set_state(output, GST_STATE_NULL);
    gst_object_unref(output);
}

} // namespace Sound
