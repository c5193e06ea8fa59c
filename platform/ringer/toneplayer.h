// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Ringer {

/** Plays one tone in a loop, rising from quiet to full. Each play() ends in audible() or failed(); failed() may also
 *  come later, when the sound breaks off. stop() is silent at once and gives no signal. */
class TonePlayer : public QObject
{
    Q_OBJECT

public:
    /** In place of a file: beeps that need no file and no decoder. */
    static constexpr auto Beeps = "beeps";
    /** In place of a file: nothing, as the user wants it; it counts as heard. */
    static constexpr auto Silence = "silence";

    using QObject::QObject;

    /** An absolute path, Beeps or Silence; ends what played before. Rounds count from 0: in later ones nothing was heard
     *  so far, so it plays through another output each time, at full volume from the start. */
    virtual void play(const QString &tone, int round) = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    void audible();
    void failed(const QString &reason);
};

} // namespace Ringer
