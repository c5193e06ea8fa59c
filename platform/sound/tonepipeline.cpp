// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/tonepipeline.h"

#include "platform/sound/audibility.h"
#include "platform/sound/logging.h"
#include "platform/sound/playbin.h"

#include <QSemaphore>

#include <thread>
#include <utility>

namespace Sound {

namespace {

// It takes some milliseconds where nothing hangs.
constexpr int HaltTime = 1000;

// Level stands before the volume: it judges the tone, not how far it has risen.
constexpr auto Filter = "audioconvert ! level name=level interval=50000000 ! volume name=volume volume=0.15";

// Two short beeps a second.
constexpr auto BeepSource = "audiotestsrc wave=ticks freq=1046 sine-periods-per-tick=230 "
                            "tick-interval=500000000 apply-tick-ramp=true volume=0.8";

QString errorText(GError *error)
{
    auto text = error ? QString::fromUtf8(error->message) : QStringLiteral("unknown error");
    g_clear_error(&error);
    return text;
}

// Naming the file again before it has ended joins end and start without a gap.
void playAgain(GstElement *playbin, void *)
{
    char *uri = nullptr;
    g_object_get(playbin, "current-uri", &uri, nullptr);
    g_object_set(playbin, "uri", uri, nullptr);
    g_free(uri);
}

GstElement *createFilePipeline(const QString &path, GstElement *output, GstElement *filter)
{
    auto *playbin = createPlaybin(path, filter, output);
    if (playbin)
        g_signal_connect(playbin, "about-to-finish", G_CALLBACK(playAgain), nullptr);
    return playbin;
}

GstElement *createBeepPipeline(GstElement *output, GstElement *filter)
{
    auto *source = gst_parse_bin_from_description(BeepSource, TRUE, nullptr);
    if (!source)
        return nullptr;
    auto *convert = gst_element_factory_make("audioconvert", nullptr);
    auto *resample = gst_element_factory_make("audioresample", nullptr);
    auto *pipeline = gst_pipeline_new(nullptr);
    gst_bin_add_many(GST_BIN(pipeline), source, filter, convert, resample, output, nullptr);
    gst_element_link_many(source, filter, convert, resample, output, nullptr);
    return pipeline;
}

} // namespace

std::unique_ptr<TonePipeline> TonePipeline::ofFile(const QString &path, QString *reason, const OutputChoice &output)
{
    const auto build = [&path](auto *sink, auto *filter) { return createFilePipeline(path, sink, filter); };
    return create(build, output, reason);
}

std::unique_ptr<TonePipeline> TonePipeline::ofBeeps(QString *reason, const OutputChoice &output)
{
    return create(createBeepPipeline, output, reason);
}

std::unique_ptr<TonePipeline> TonePipeline::create(const Build &build, const OutputChoice &choice, QString *reason)
{
    auto *output = createSoundOutput(reason, choice);
    if (!output)
        return nullptr;
    GError *error = nullptr;
    auto *filter = gst_parse_bin_from_description(Filter, TRUE, &error);
    if (!filter) {
        *reason = errorText(error);
        discardSoundOutput(output);
        return nullptr;
    }
    auto *pipeline = build(output, filter);
    if (!pipeline) {
        *reason = QStringLiteral("GStreamer lacks its base plug-ins");
        gst_object_unref(filter);
        discardSoundOutput(output);
        return nullptr;
    }
    gst_object_unref(output);
    return std::unique_ptr<TonePipeline>(new TonePipeline(pipeline, filter));
}

TonePipeline::TonePipeline(GstElement *pipeline, GstElement *filter)
    : m_pipeline(pipeline)
    , m_volume(gst_bin_get_by_name(GST_BIN(filter), "volume"))
{
    connect(this, &TonePipeline::errorSeen, this, &TonePipeline::failed, Qt::QueuedConnection);
    connect(this, &TonePipeline::levelSeen, this, &TonePipeline::flows, Qt::QueuedConnection);
    connect(this, &TonePipeline::endSeen, this, &TonePipeline::startAgain, Qt::QueuedConnection);
    auto *bus = gst_element_get_bus(m_pipeline);
    gst_bus_set_sync_handler(bus, &TonePipeline::onMessage, this, nullptr);
    gst_object_unref(bus);
}

TonePipeline::~TonePipeline()
{
    halt();
    auto *bus = gst_element_get_bus(m_pipeline);
    gst_bus_set_sync_handler(bus, nullptr, nullptr, nullptr);
    gst_object_unref(bus);
    gst_clear_object(&m_volume);
    gst_object_unref(m_pipeline);
}

void TonePipeline::end(std::unique_ptr<TonePipeline> &pipeline, const QObject *follower)
{
    if (!pipeline)
        return;
    pipeline->disconnect(follower);
    pipeline->halt();
    // Not deleted at once: it may be the one that just called.
    pipeline.release()->deleteLater();
}

void TonePipeline::start()
{
    gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
}

// Joins GStreamer's threads; nothing is posted afterwards. Where a sound server hangs they cannot be joined, and are
// left behind.
void TonePipeline::halt()
{
    if (std::exchange(m_isHalted, true))
        return;
    const auto isDone = std::make_shared<QSemaphore>();
    std::thread([pipeline = GST_ELEMENT(gst_object_ref(m_pipeline)), isDone] {
        gst_element_set_state(pipeline, GST_STATE_NULL);
        gst_object_unref(pipeline);
        isDone->release();
    }).detach();
    if (!isDone->tryAcquire(1, HaltTime))
        qCWarning(lcSound, "The sound output does not let go, ignoring");
}

void TonePipeline::setVolume(double amplitude)
{
    g_object_set(m_volume, "volume", amplitude, nullptr);
}

GstBusSyncReply TonePipeline::onMessage(GstBus *, GstMessage *message, void *self)
{
    static_cast<TonePipeline *>(self)->post(message);
    gst_message_unref(message);
    return GST_BUS_DROP;
}

// Runs in GStreamer's threads, and in the main thread while the state changes.
void TonePipeline::post(GstMessage *message)
{
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: {
        GError *error = nullptr;
        gst_message_parse_error(message, &error, nullptr);
        Q_EMIT errorSeen(errorText(error));
        break;
    }
    case GST_MESSAGE_EOS:
        Q_EMIT endSeen();
        break;
    case GST_MESSAGE_STATE_CHANGED:
        if (GST_MESSAGE_SRC(message) == GST_OBJECT(m_pipeline)) {
            GstState now = GST_STATE_NULL;
            gst_message_parse_state_changed(message, nullptr, &now, nullptr);
            m_playing = now == GST_STATE_PLAYING;
        }
        break;
    case GST_MESSAGE_ELEMENT:
        measure(message);
        break;
    default:
        break;
    }
}

void TonePipeline::measure(GstMessage *message)
{
    const auto *level = gst_message_get_structure(message);
    // Before that, sound only fills the buffers.
    if (!m_playing || !gst_structure_has_name(level, "level"))
        return;
    Q_EMIT levelSeen(isAudible(level));
}

// A file too short for the seamless way ends; it begins anew.
void TonePipeline::startAgain()
{
    if (m_isHalted)
        return;
    gst_element_seek_simple(m_pipeline, GST_FORMAT_TIME, GST_SEEK_FLAG_FLUSH, 0);
}

} // namespace Sound
