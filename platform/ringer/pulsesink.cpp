// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/pulsesink.h"

#include <pulse/pulseaudio.h>
#include <QDeadlineTimer>

#include <cstring>
#include <functional>
#include <memory>

namespace Ringer {

namespace {

using namespace std::chrono_literals;

constexpr auto ServerTime = 2000ms;

struct EndContext
{
    void operator()(pa_context *context) const
    {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

struct Answer
{
    std::optional<PulseSink> sink;
    bool isComplete = false;
};

// The server makes a sink of this name where it has no device at all.
bool leadsNowhere(const pa_sink_info &sink)
{
    return std::strcmp(sink.name, "auto_null") == 0;
}

uint percentOf(const pa_sink_info &sink)
{
    // There the volume of the stream is that of the sink, and the ringer's is full.
    if (sink.flags & PA_SINK_FLAT_VOLUME)
        return 100;
    return uint((quint64(pa_cvolume_max(&sink.volume)) * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM);
}

void takeSink(pa_context *, const pa_sink_info *sink, int end, void *answer)
{
    auto *into = static_cast<Answer *>(answer);
    if (end)
        into->isComplete = true;
    else if (!leadsNowhere(*sink))
        into->sink = {QString::fromUtf8(sink->description), percentOf(*sink), sink->mute != 0};
}

bool runUntil(pa_mainloop *loop, const QDeadlineTimer &deadline, const std::function<bool()> &isDone)
{
    while (!isDone()) {
        const auto left = deadline.remainingTimeAsDuration();
        if (left <= 0ns)
            return false;
        const auto timeout = int(std::chrono::duration_cast<std::chrono::microseconds>(left).count());
        if (pa_mainloop_prepare(loop, timeout) < 0 || pa_mainloop_poll(loop) < 0 || pa_mainloop_dispatch(loop) < 0)
            return false;
    }
    return true;
}

bool connectTo(pa_context *context, pa_mainloop *loop, const QDeadlineTimer &deadline)
{
    if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return false;
    const auto isSettled = [context] {
        const auto state = pa_context_get_state(context);
        return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
    };
    return runUntil(loop, deadline, isSettled) && pa_context_get_state(context) == PA_CONTEXT_READY;
}

} // namespace

std::optional<PulseSink> defaultPulseSink(QString *reason)
{
    const QDeadlineTimer deadline(ServerTime);
    const std::unique_ptr<pa_mainloop, decltype(&pa_mainloop_free)> loop(pa_mainloop_new(), pa_mainloop_free);
    const std::unique_ptr<pa_context, EndContext> context(pa_context_new(pa_mainloop_get_api(loop.get()), "Clock"));
    if (!connectTo(context.get(), loop.get(), deadline)) {
        *reason = QStringLiteral("no sound server answers");
        return {};
    }
    Answer answer;
    auto *operation = pa_context_get_sink_info_by_name(context.get(), "@DEFAULT_SINK@", takeSink, &answer);
    const auto isAnswered = operation && runUntil(loop.get(), deadline, [&answer] { return answer.isComplete; });
    if (operation) {
        pa_operation_cancel(operation);
        pa_operation_unref(operation);
    }
    if (!answer.sink)
        *reason = isAnswered ? QStringLiteral("the sound server has no sound device")
                             : QStringLiteral("the sound server does not answer");
    return answer.sink;
}

} // namespace Ringer
