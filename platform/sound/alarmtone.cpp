// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/alarmtone.h"

#include "platform/sound/logging.h"
#include "platform/sound/tonepipeline.h"

namespace Sound {

namespace {

std::unique_ptr<TonePipeline> create(const QString &path, const OutputChoice &output, QString *reason)
{
    return path.isEmpty() ? TonePipeline::ofBeeps(reason, output) : TonePipeline::ofFile(path, reason, output);
}

} // namespace

AlarmTone::AlarmTone(QObject *parent)
    : QObject(parent)
    , m_outputs(this)
{
    connect(&m_outputs, &OutputKeeper::speakerChanged, this, &AlarmTone::playThrough);
}

AlarmTone::~AlarmTone() = default;

bool AlarmTone::start(const QString &path, int way, double amplitude, QString *reason)
{
    stop();
    m_path = path;
    m_amplitude = amplitude;
    m_usual = create(path, {way, {}}, reason);
    if (!m_usual)
        return false;
    connect(m_usual.get(), &TonePipeline::flows, this, &AlarmTone::flows);
    connect(m_usual.get(), &TonePipeline::failed, this, &AlarmTone::failed);
    m_usual->setVolume(amplitude);
    m_usual->start();
    m_outputs.keepOpen();
    return true;
}

void AlarmTone::stop()
{
    TonePipeline::end(m_usual, this);
    TonePipeline::end(m_speaker, this);
    m_outputs.letGo();
}

void AlarmTone::setVolume(double amplitude)
{
    m_amplitude = amplitude;
    for (const auto *pipeline : {&m_usual, &m_speaker}) {
        if (*pipeline)
            (*pipeline)->setVolume(amplitude);
    }
}

// The usual output is watched; what becomes of this one beside it is no reason to give up the tone.
void AlarmTone::playThrough(const QString &speaker)
{
    TonePipeline::end(m_speaker, this);
    if (speaker.isEmpty())
        return;
    QString reason;
    m_speaker = create(m_path, {0, speaker}, &reason);
    if (!m_speaker) {
        qCWarning(lcSound, "The loudspeaker, ignoring: %ls", qUtf16Printable(reason));
        return;
    }
    connect(m_speaker.get(), &TonePipeline::failed, this, [this](const QString &why) {
        qCWarning(lcSound, "The loudspeaker, ignoring: %ls", qUtf16Printable(why));
        TonePipeline::end(m_speaker, this);
    });
    m_speaker->setVolume(m_amplitude);
    m_speaker->start();
}

} // namespace Sound
