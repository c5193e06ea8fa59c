// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/outputkeeper.h"

#include "platform/sound/logging.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace Sound {

namespace {

using namespace std::chrono_literals;

// Half asleep one may mute it, or pull a plug.
constexpr auto LookInterval = 2000ms;

} // namespace

QList<PulseSink> outputsOf(const QList<PulseSink> &sinks)
{
    const auto isDefault = [](const PulseSink &sink) { return sink.isDefault; };
    const auto isSpeaker = [](const PulseSink &sink) { return sink.place == PulseSink::Place::Room; };
    const auto usual = std::find_if(sinks.begin(), sinks.end(), isDefault);
    if (usual == sinks.end())
        return {};
    const auto speaker = std::find_if(sinks.begin(), sinks.end(), isSpeaker);
    if (usual->place != PulseSink::Place::Ears || speaker == sinks.end())
        return {*usual};
    return {*usual, *speaker};
}

OutputKeeper::OutputKeeper(QObject *parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
    m_next.setSingleShot(true);
    m_next.setInterval(LookInterval);
    connect(&m_next, &QTimer::timeout, this, &OutputKeeper::look);
    connect(this, &OutputKeeper::looked, this, &OutputKeeper::onLooked, Qt::QueuedConnection);
}

OutputKeeper::~OutputKeeper()
{
    letGo();
    m_thread.waitForDone();
}

void OutputKeeper::keepOpen()
{
    if (std::exchange(m_isKept, true))
        return;
    ++m_spell;
    look();
}

void OutputKeeper::letGo()
{
    if (!std::exchange(m_isKept, false))
        return;
    ++m_spell;
    m_next.stop();
    m_speaker.clear();
    m_thread.start([this] { restore(); });
}

void OutputKeeper::look()
{
    m_thread.start([this, spell = m_spell] { Q_EMIT looked(spell, open()); });
}

void OutputKeeper::onLooked(int spell, const QString &speaker)
{
    if (spell != m_spell)
        return;
    m_next.start();
    if (std::exchange(m_speaker, speaker) != speaker)
        Q_EMIT speakerChanged(speaker);
}

QString OutputKeeper::open()
{
    QString reason;
    const auto server = PulseServer::create(&reason);
    const auto sinks = server ? server->sinks() : std::nullopt;
    const auto outputs = outputsOf(sinks.value_or(QList<PulseSink>()));
    for (const auto &output : outputs)
        open(*server, output);
    return outputs.size() > 1 ? outputs.last().id : QString();
}

void OutputKeeper::open(PulseServer &server, const PulseSink &sink)
{
    if (sink.isMuted && server.setMuted(sink.id, false)) {
        qCInfo(lcSound, "%ls was muted, opened", qUtf16Printable(sink.name));
        m_before[sink.id].wasMuted = true;
    }
    if (sink.takesVolume || sink.volume >= LeastVolume || !server.setVolume(sink.id, LeastVolume))
        return;
    qCInfo(lcSound, "%ls was at %u %%, raised", qUtf16Printable(sink.name), sink.volume);
    auto &before = m_before[sink.id];
    before.volume = before.volume.value_or(sink.volume);
}

// What somebody has changed since stays as it is now.
void OutputKeeper::restore()
{
    if (m_before.isEmpty())
        return;
    QString reason;
    const auto server = PulseServer::create(&reason);
    const auto sinks = server ? server->sinks() : std::nullopt;
    for (const auto &sink : sinks.value_or(QList<PulseSink>())) {
        const auto before = m_before.value(sink.id);
        if (before.volume && sink.volume == LeastVolume)
            server->setVolume(sink.id, *before.volume);
        if (before.wasMuted && !sink.isMuted)
            server->setMuted(sink.id, true);
    }
    m_before.clear();
}

} // namespace Sound
