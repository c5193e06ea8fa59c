// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/outputrecord.h"
#include "platform/sound/pulseserver.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

namespace Sound {

/** Where a tone that has to be heard is to sound, the default sink first: where that is worn on the ears, through a
 *  loudspeaker as well; where it is among those that cannot be opened, through another one as well. */
[[nodiscard]] QList<PulseSink> outputsOf(const QList<PulseSink> &sinks, const QStringList &shut = {});

/**
 * Keeps the sound server's outputs audible for as long as it is asked to: one that is muted is opened, one that is low
 * is raised, also when that happens later; afterwards they are as they were, and so is what a program that was killed
 * has left. Without a sound server nothing happens. Asks the server in a thread of its own; lives in the main thread.
 */
class OutputKeeper : public QObject
{
    Q_OBJECT

public:
    /** In percent; an output that is lower is raised to it. */
    static constexpr uint LeastVolume = 50;

    explicit OutputKeeper(QObject *parent = nullptr);
    ~OutputKeeper() override;

    void keepOpen(); ///< from now on
    void letGo();

Q_SIGNALS:
    /** The sink that is to sound beside the default one, mostly a loudspeaker; empty: none. */
    void speakerChanged(const QString &sink);

    // From the thread, for this object itself.
    void looked(int spell, const QString &speaker);

private:
    void look();
    void onLooked(int spell, const QString &speaker);
    // In the thread.
    QString open();
    [[nodiscard]] bool open(PulseServer &server, const PulseSink &sink);
    void remember(const QString &sink, const OutputBefore &before);
    void restore();

    QThreadPool m_thread;
    QTimer m_next;
    int m_spell = 0; ///< counts keepOpen() and letGo(): what was seen before is out of date
    bool m_isKept = false;
    QString m_speaker;
    OutputsBefore m_before; ///< the thread's
};

} // namespace Sound
