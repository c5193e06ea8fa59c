// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"
#include "platform/ringer/toneorder.h"
#include "platform/timedclient/wire.h"

#include <QDeadlineTimer>
#include <QObject>

#include <memory>
#include <vector>

namespace Ringer {

class AlarmDaemon;
class PluginLoader;
class Ring;
class TonePlayer;

/**
 * Everything that rings now. One ring for each cookie, in the order in which they became due; the first has the sound,
 * the others wait on the screen for their turn. Carries the screen's answers to the daemon, except those that come so
 * soon after another alarm went that they were meant for that one. Owned by the program, main thread; a snooze that
 * cannot be delivered makes the alarm ring again.
 */
class RingController : public QObject, private Answers
{
    Q_OBJECT

public:
    RingController(AlarmDaemon *daemon, TonePlayer *player, PluginLoader *plugins,
                   const ToneOrder &toneOrder = ToneOrder(), QObject *parent = nullptr);
    ~RingController() override;

    /** "due" in nanoseconds since the epoch. Asked again for a cookie that rings, it goes on and reports again. */
    void ring(quint32 cookie, const Astel::Timed::Wire::Event &event, quint64 due);
    void stop(quint32 cookie); ///< unknown cookies are ignored
    [[nodiscard]] bool isIdle() const { return m_rings.empty(); }

    /** Answers that name the alarm and cannot be meant for another; "by" is for the journal. */
    void snoozeBy(quint32 cookie, int seconds, const QString &by);
    void dismissBy(quint32 cookie, const QString &by);

Q_SIGNALS:
    void idleChanged(bool isIdle);
    void begun(const Ringer::Alarm &alarm); ///< also again, when an answer could not be delivered
    void over(quint32 cookie);              ///< answered, or ended by the daemon

private:
    void shown(quint32 cookie) override;
    void snooze(quint32 cookie, int seconds) override;
    void dismiss(quint32 cookie) override;
    void onAnswered(quint32 cookie);
    void onSnoozeFailed(quint32 cookie, const QString &reason);

    [[nodiscard]] Ring *find(quint32 cookie) const;
    [[nodiscard]] Ring *findUnanswered(quint32 cookie) const;
    [[nodiscard]] QString screenOf(quint32 cookie) const;
    Ring *add(const Alarm &alarm, const QString &pluginName);
    void reportSound(const Ring &ring);
    void remove(quint32 cookie);
    void passTurnOn();
    void passSoundOn();
    void followFront();

    AlarmDaemon *m_daemon;
    TonePlayer *m_player;
    PluginLoader *m_plugins;
    ToneOrder m_toneOrder;
    std::vector<std::unique_ptr<Ring>> m_rings;
    quint32 m_front = 0; ///< the cookie of the alarm that is answered next; 0: none
    QDeadlineTimer m_deafness;
};

} // namespace Ringer
