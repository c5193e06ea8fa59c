// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/alarmevent.h"

#include <chrono>
#include <map>
#include <memory>
#include <QObject>
#include <QTimer>

namespace Notices {
class Notifier;
}

namespace Astel::Timed {

class LifeCycle;
class ZoneSource;

/**
 * Shows what became of an alarm that was answered: as long as it snoozes, when it rings again and a way to stop it;
 * for some minutes after it was stopped, a way to have it ring again after all. To be made before the life cycle starts.
 */
class AnswerTeller : public QObject
{
    Q_OBJECT

public:
    /** How long a stop can be taken back. */
    static constexpr std::chrono::milliseconds TimeToTakeBack = std::chrono::minutes(5);

    AnswerTeller(LifeCycle &lifeCycle, Notices::Notifier &notifier, const ZoneSource &zone,
                 std::chrono::milliseconds timeToTakeBack = TimeToTakeBack);

private:
    struct Stopped
    {
        AlarmEvent event; ///< as it was; it may be stored no more
        std::unique_ptr<QTimer> end;
    };

    void follow(const AlarmEvent &event);
    void forget(quint32 cookie);
    void tellSnooze(const AlarmEvent &event);
    void endSnooze(quint32 cookie);
    void tellAll();
    void offerAgain(const AlarmEvent &event);
    void withdrawOffer(quint32 cookie);
    void answer(const QString &actionKey);
    void ringAgain(quint32 cookie);

    LifeCycle &m_lifeCycle;
    Notices::Notifier &m_notifier;
    const ZoneSource &m_zone;
    const std::chrono::milliseconds m_timeToTakeBack;
    std::map<quint32, AlarmEvent> m_snoozed;
    std::map<quint32, Stopped> m_stopped;
};

} // namespace Astel::Timed
