// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/outputkeeper.h"

#include <QObject>

#include <memory>

namespace Sound {

class TonePipeline;

/**
 * A tone that has to be heard: through the output that is usual, at its own volume even where that was muted, and
 * through the loudspeaker too where the usual one is worn on the ears. Needs gst_init(). Main thread.
 */
class AlarmTone : public QObject
{
    Q_OBJECT

public:
    explicit AlarmTone(QObject *parent = nullptr);
    ~AlarmTone() override;

    /** Ends what played before. An empty path: beeps. "way" counts the ways as createSoundOutput() does; false, with a
     *  reason, where none opens. */
    [[nodiscard]] bool start(const QString &path, int way, double amplitude, QString *reason);
    void stop(); ///< silent when it returns; no signal comes from then on
    void setVolume(double amplitude);

Q_SIGNALS:
    void flows(bool audible); ///< every 50 ms while sound goes out
    void failed(const QString &reason);

private:
    void playThrough(const QString &speaker);

    OutputKeeper m_outputs;
    QString m_path;
    double m_amplitude = 1;
    std::unique_ptr<TonePipeline> m_usual;
    std::unique_ptr<TonePipeline> m_speaker; ///< where the usual output is worn on the ears
};

} // namespace Sound
