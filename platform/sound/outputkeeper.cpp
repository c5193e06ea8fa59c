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
using Place = PulseSink::Place;

// Half asleep one may mute it, or pull a plug.
constexpr auto LookInterval = 2000ms;

} // namespace

QList<PulseSink> outputsOf(const QList<PulseSink> &sinks, const QStringList &shut)
{
    const auto usual = std::find_if(sinks.begin(), sinks.end(), [](const PulseSink &sink) { return sink.isDefault; });
    if (usual == sinks.end())
        return {};
    const auto other = [&](std::initializer_list<Place> places) -> QList<PulseSink> {
        for (const auto place : places) {
            for (const auto &sink : sinks) {
                if (!sink.isDefault && sink.place == place && !shut.contains(sink.id))
                    return {sink};
            }
        }
        return {};
    };
    if (shut.contains(usual->id))
        return QList{*usual} + other({Place::Room, Place::Unknown, Place::Ears});
    return usual->place == Place::Ears ? QList{*usual} + other({Place::Room}) : QList{*usual};
}

OutputKeeper::OutputKeeper(QObject *parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
    m_next.setSingleShot(true);
    m_next.setInterval(LookInterval);
    connect(&m_next, &QTimer::timeout, this, &OutputKeeper::look);
    connect(this, &OutputKeeper::looked, this, &OutputKeeper::onLooked, Qt::QueuedConnection);
    m_thread.start([this] {
        m_before = OutputRecord::read();
        restore();
    });
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
    QStringList shut;
    const auto isShut = [&](const PulseSink &sink) { return !shut.contains(sink.id) && !open(*server, sink); };
    for (;;) {
        const auto outputs = outputsOf(sinks.value_or(QList<PulseSink>()), shut);
        const auto refusing = std::find_if(outputs.begin(), outputs.end(), isShut);
        if (refusing == outputs.end())
            return outputs.size() > 1 ? outputs.last().id : QString();
        qCWarning(lcSound, "%ls cannot be opened", qUtf16Printable(refusing->name));
        shut += refusing->id;
    }
}

// Remembered before it is done: whoever is killed in between has changed nothing.
bool OutputKeeper::open(PulseServer &server, const PulseSink &sink)
{
    auto before = m_before.value(sink.id);
    if (sink.isMuted) {
        before.wasMuted = true;
        remember(sink.id, before);
        if (!server.setMuted(sink.id, false))
            return false;
        qCInfo(lcSound, "%ls was muted, opened", qUtf16Printable(sink.name));
    }
    if (sink.takesVolume || sink.volume >= LeastVolume)
        return true;
    before.volume = before.volume.value_or(sink.volume);
    remember(sink.id, before);
    if (!server.setVolume(sink.id, LeastVolume))
        return sink.volume > 0;
    qCInfo(lcSound, "%ls was at %u %%, raised", qUtf16Printable(sink.name), sink.volume);
    return true;
}

void OutputKeeper::remember(const QString &sink, const OutputBefore &before)
{
    const auto known = m_before.constFind(sink);
    if (known != m_before.constEnd() && *known == before)
        return;
    m_before.insert(sink, before);
    OutputRecord::write(m_before);
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
    OutputRecord::write(m_before);
}

} // namespace Sound
