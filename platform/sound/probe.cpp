// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/probe.h"

#include "platform/sound/audibility.h"
#include "platform/sound/playbin.h"

#include <QDeadlineTimer>
#include <QFileInfo>

#include <memory>
#include <optional>

namespace Sound {

namespace {

using namespace std::chrono_literals;

constexpr auto ProbeTime = 2000ms;
constexpr auto Awaited = GstMessageType(GST_MESSAGE_ERROR | GST_MESSAGE_EOS | GST_MESSAGE_ELEMENT);

struct EndPipeline
{
    void operator()(GstElement *pipeline) const
    {
        gst_element_set_state(pipeline, GST_STATE_NULL);
        gst_object_unref(pipeline);
    }
};

using Pipeline = std::unique_ptr<GstElement, EndPipeline>;

QString reasonAgainstFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("is missing");
    if (!file.isFile())
        return QStringLiteral("is no file");
    if (!file.isReadable())
        return QStringLiteral("cannot be read");
    return file.size() > 0 ? QString() : QStringLiteral("is empty");
}

// As it is played, but as fast as it decodes, and into nothing.
Pipeline createPipeline(const QString &path)
{
    auto *filter = gst_parse_bin_from_description("audioconvert ! level interval=50000000", TRUE, nullptr);
    auto *sink = gst_element_factory_make("fakesink", nullptr);
    auto *playbin = filter && sink ? createPlaybin(path, filter, sink) : nullptr;
    if (!playbin) {
        gst_clear_object(&filter);
        gst_clear_object(&sink);
        return nullptr;
    }
    g_object_set(sink, "sync", FALSE, nullptr);
    return Pipeline(playbin);
}

QString errorText(GstMessage *message)
{
    GError *error = nullptr;
    gst_message_parse_error(message, &error, nullptr);
    auto text = QString::fromUtf8(error->message);
    g_error_free(error);
    return text;
}

Probe unplayable(const QString &reason)
{
    return {Probe::Unplayable, reason};
}

Probe withoutPlugins()
{
    return unplayable(QStringLiteral("cannot be decoded (GStreamer lacks its base plug-ins)"));
}

// Nothing as long as more has to be decoded.
std::optional<Probe> judge(GstMessage *message)
{
    const Probe silent{Probe::Silent, QStringLiteral("is silent")};
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR)
        return unplayable(QStringLiteral("cannot be decoded (%1)").arg(errorText(message)));
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS)
        return silent;
    const auto *level = gst_message_get_structure(message);
    if (!gst_structure_has_name(level, "level"))
        return {};
    if (isAudible(level))
        return Probe();
    guint64 position = 0;
    gst_structure_get_clock_time(level, "stream-time", &position);
    return std::chrono::nanoseconds(position) < FirstSoundTime ? std::nullopt : std::optional(silent);
}

Probe decode(const Pipeline &pipeline)
{
    const QDeadlineTimer deadline(ProbeTime);
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    const std::unique_ptr<GstBus, decltype(&gst_object_unref)> bus(gst_element_get_bus(pipeline.get()),
                                                                   gst_object_unref);
    while (!deadline.hasExpired()) {
        auto *message = gst_bus_timed_pop_filtered(bus.get(), GstClockTime(deadline.remainingTimeNSecs()), Awaited);
        if (!message)
            break;
        const auto judgement = judge(message);
        gst_message_unref(message);
        if (judgement)
            return *judgement;
    }
    return unplayable(QStringLiteral("is not decoded in time"));
}

} // namespace

Probe probeFile(const QString &path)
{
    gst_init(nullptr, nullptr);
    if (const auto reason = reasonAgainstFile(path); !reason.isEmpty())
        return unplayable(reason);
    const auto pipeline = createPipeline(path);
    return pipeline ? decode(pipeline) : withoutPlugins();
}

Probe probeBeeps()
{
    gst_init(nullptr, nullptr);
    auto *source = gst_element_factory_find("audiotestsrc");
    const auto found = source != nullptr;
    gst_clear_object(&source);
    return found ? Probe() : withoutPlugins();
}

} // namespace Sound
