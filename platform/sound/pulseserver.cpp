// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/pulseserver.h"

#include <pulse/pulseaudio.h>

#include <chrono>
#include <cstring>

namespace Sound {

namespace {

using namespace std::chrono_literals;
using Place = PulseSink::Place;

constexpr auto ServerTime = 2000ms;

// The server makes a sink of this name where it has no device at all.
bool leadsNowhere(const pa_sink_info &sink)
{
    return std::strcmp(sink.name, "auto_null") == 0;
}

Place placeOf(const pa_sink_port_info &port)
{
    switch (port.type) {
    case PA_DEVICE_PORT_TYPE_HEADPHONES:
    case PA_DEVICE_PORT_TYPE_HEADSET:
    case PA_DEVICE_PORT_TYPE_EARPIECE:
    case PA_DEVICE_PORT_TYPE_HANDSET:
        return Place::Ears;
    case PA_DEVICE_PORT_TYPE_SPEAKER:
        return Place::Room;
    default:
        return Place::Unknown;
    }
}

// What is plugged in says more than what the card is.
Place placeOf(const pa_sink_info &sink)
{
    const auto ofPort = sink.active_port ? placeOf(*sink.active_port) : Place::Unknown;
    if (ofPort != Place::Unknown)
        return ofPort;
    const auto form = QString::fromUtf8(pa_proplist_gets(sink.proplist, PA_PROP_DEVICE_FORM_FACTOR));
    if (QStringList{"headphone", "headset", "handset"}.contains(form))
        return Place::Ears;
    return QStringList{"internal", "speaker", "portable"}.contains(form) ? Place::Room : Place::Unknown;
}

uint percentOf(const pa_sink_info &sink)
{
    return uint((quint64(pa_cvolume_max(&sink.volume)) * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM);
}

template <typename Info>
struct Answer
{
    QList<Info> found;
    bool isComplete = false;
};

void takeSink(pa_context *, const pa_sink_info *sink, int end, void *answer)
{
    auto *into = static_cast<Answer<PulseSink> *>(answer);
    if (end)
        into->isComplete = true;
    else if (!leadsNowhere(*sink))
        into->found += {QString::fromUtf8(sink->name),
                        QString::fromUtf8(sink->description),
                        placeOf(*sink),
                        percentOf(*sink),
                        (sink->flags & PA_SINK_FLAT_VOLUME) != 0,
                        sink->mute != 0,
                        false};
}

void takeVolume(pa_context *, const pa_sink_info *sink, int end, void *answer)
{
    auto *into = static_cast<Answer<pa_cvolume> *>(answer);
    if (end)
        into->isComplete = true;
    else
        into->found += sink->volume;
}

struct Defaults
{
    QString sink;
    bool isComplete = false;
};

void takeDefaults(pa_context *, const pa_server_info *server, void *answer)
{
    auto *into = static_cast<Defaults *>(answer);
    into->sink = server ? QString::fromUtf8(server->default_sink_name) : QString();
    into->isComplete = true;
}

void takeSuccess(pa_context *, int isSuccess, void *answer)
{
    *static_cast<bool *>(answer) = isSuccess != 0;
}

} // namespace

void PulseServer::EndContext::operator()(pa_context *context) const
{
    pa_context_disconnect(context);
    pa_context_unref(context);
}

void PulseServer::EndLoop::operator()(pa_mainloop *loop) const
{
    pa_mainloop_free(loop);
}

PulseServer::PulseServer(std::chrono::milliseconds time)
    : m_deadline(time)
    , m_loop(pa_mainloop_new())
    , m_context(pa_context_new(pa_mainloop_get_api(m_loop.get()), "Clock"))
{ }

PulseServer::~PulseServer() = default;

std::unique_ptr<PulseServer> PulseServer::create(QString *reason)
{
    std::unique_ptr<PulseServer> server(new PulseServer(ServerTime));
    if (server->connect())
        return server;
    *reason = QStringLiteral("no sound server answers");
    return nullptr;
}

bool PulseServer::hangs(std::chrono::milliseconds time)
{
    PulseServer server(time);
    return !server.connect() && server.m_deadline.hasExpired();
}

bool PulseServer::connect()
{
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return false;
    const auto state = [this] { return pa_context_get_state(m_context.get()); };
    return runUntil([&state] { return state() == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state()); })
        && state() == PA_CONTEXT_READY;
}

bool PulseServer::runUntil(const std::function<bool()> &isDone)
{
    while (!isDone()) {
        const auto left = m_deadline.remainingTimeAsDuration();
        if (left <= 0ns)
            return false;
        const auto timeout = int(std::chrono::duration_cast<std::chrono::microseconds>(left).count());
        if (pa_mainloop_prepare(m_loop.get(), timeout) < 0 || pa_mainloop_poll(m_loop.get()) < 0
            || pa_mainloop_dispatch(m_loop.get()) < 0)
            return false;
    }
    return true;
}

// What it wrote its answer to may go once this returns.
bool PulseServer::finish(pa_operation *operation)
{
    if (!operation)
        return false;
    const auto isOver = [operation] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; };
    const auto isDone = runUntil(isOver) && pa_operation_get_state(operation) == PA_OPERATION_DONE;
    pa_operation_cancel(operation);
    pa_operation_unref(operation);
    return isDone;
}

std::optional<QList<PulseSink>> PulseServer::sinks()
{
    Defaults defaults;
    Answer<PulseSink> answer;
    if (!finish(pa_context_get_server_info(m_context.get(), takeDefaults, &defaults))
        || !finish(pa_context_get_sink_info_list(m_context.get(), takeSink, &answer)) || !answer.isComplete)
        return {};
    for (auto &sink : answer.found)
        sink.isDefault = sink.id == defaults.sink;
    return answer.found;
}

bool PulseServer::setMuted(const QString &sink, bool isMuted)
{
    auto isSuccess = false;
    auto *operation = pa_context_set_sink_mute_by_name(m_context.get(), sink.toUtf8().constData(), isMuted, takeSuccess,
                                                       &isSuccess);
    return finish(operation) && isSuccess;
}

// Left and right keep their balance.
bool PulseServer::setVolume(const QString &sink, uint percent)
{
    Answer<pa_cvolume> answer;
    const auto name = sink.toUtf8();
    if (!finish(pa_context_get_sink_info_by_name(m_context.get(), name.constData(), takeVolume, &answer))
        || answer.found.isEmpty())
        return false;
    auto volume = answer.found.first();
    pa_cvolume_scale(&volume, pa_volume_t(quint64(percent) * PA_VOLUME_NORM / 100));
    auto isSuccess = false;
    auto *operation
        = pa_context_set_sink_volume_by_name(m_context.get(), name.constData(), &volume, takeSuccess, &isSuccess);
    return finish(operation) && isSuccess;
}

} // namespace Sound
