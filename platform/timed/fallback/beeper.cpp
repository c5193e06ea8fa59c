// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/beeper.h"

#include <array>
#include <chrono>
#include <gst/gst.h>
#include <QtGlobal>

namespace Fallback {

namespace {

using namespace std::chrono_literals;

constexpr std::array Outputs{"pulsesink", "alsasink", "autoaudiosink"};
// Half a second of sound in each.
constexpr auto Tone = "audiotestsrc wave=ticks freq=880 tick-interval=1000000000 sine-periods-per-tick=440 volume=0.9"
                      " ! audioconvert ! audioresample ! ";
constexpr auto RetryInterval = 300ms;
constexpr auto WatchInterval = 100ms;

struct Unref
{
    void operator()(GstMessage *message) const { gst_message_unref(message); }
    void operator()(GstBus *bus) const { gst_object_unref(bus); }
};

/** Whether the output takes the tone and gives it to nobody: the last choice of an automatic one. */
bool isDeaf(GstElement *pipeline)
{
    GstIterator *outputs = gst_bin_iterate_all_by_element_factory_name(GST_BIN(pipeline), "fakesink");
    GValue output = G_VALUE_INIT;
    const bool found = gst_iterator_next(outputs, &output) == GST_ITERATOR_OK;
    if (found)
        g_value_unset(&output);
    gst_iterator_free(outputs);
    return found;
}

} // namespace

void Beeper::End::operator()(GstElement *pipeline) const
{
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
}

Beeper::Beeper()
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryInterval);
    m_watch.setInterval(WatchInterval);
    connect(&m_retry, &QTimer::timeout, this, &Beeper::open);
    connect(&m_watch, &QTimer::timeout, this, &Beeper::look);
}

Beeper::~Beeper() = default;

void Beeper::start()
{
    if (!m_pipeline && !m_retry.isActive())
        open();
}

void Beeper::stop()
{
    m_retry.stop();
    m_watch.stop();
    m_pipeline.reset();
    m_heard = false;
}

void Beeper::open()
{
    const QByteArray description = QByteArray(Tone) + Outputs[m_output];
    m_output = (m_output + 1) % Outputs.size();
    GError *error = nullptr;
    m_pipeline.reset(gst_parse_launch_full(description.constData(), nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &error));
    if (!m_pipeline || gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE
        || isDeaf(m_pipeline.get())) {
        // Once for each: without any output they are tried over and over.
        if (++m_failures <= Outputs.size())
            qWarning("no sound through %s", description.constData());
        m_pipeline.reset();
        m_retry.start();
    } else {
        m_watch.start();
    }
    g_clear_error(&error);
}

void Beeper::look()
{
    const std::unique_ptr<GstBus, Unref> bus(gst_element_get_bus(m_pipeline.get()));
    const std::unique_ptr<GstMessage, Unref> trouble(
        gst_bus_pop_filtered(bus.get(), GstMessageType(GST_MESSAGE_ERROR | GST_MESSAGE_EOS)));
    if (trouble) {
        qWarning("the sound output failed, trying the next one");
        stop();
        m_retry.start();
        return;
    }
    GstState state = GST_STATE_NULL;
    gst_element_get_state(m_pipeline.get(), &state, nullptr, 0);
    if (state == GST_STATE_PLAYING && !m_heard) {
        m_heard = true;
        emit heard();
    }
}

} // namespace Fallback
