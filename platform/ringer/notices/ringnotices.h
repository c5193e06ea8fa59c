// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QObject>

#include <map>

namespace Astel::Timed::Wire {
struct Event;
}

namespace Notices {
class Notifier;
}

namespace Ringer {

/** What a notification says of an alarm that rings. */
struct RingNotice
{
    quint32 cookie = 0;
    QString title;
    QDateTime due;
    int snoozeSeconds = 0; ///< what a snooze lasts; 0: this alarm cannot be snoozed
};

/** "due" in nanoseconds since the epoch. */
[[nodiscard]] RingNotice ringNoticeOf(quint32 cookie, const Astel::Timed::Wire::Event &event, quint64 due);

/**
 * Shows each alarm that rings as a notification too, with the screen's two answers, for the lock screen that covers
 * everything else. An alarm that is answered elsewhere takes its notification along. Whoever comes to show notifications
 * later, or anew, is given all of them. Owned by the program; main thread.
 */
class RingNotices : public QObject
{
    Q_OBJECT

public:
    explicit RingNotices(Notices::Notifier *notifier, QObject *parent = nullptr);
    ~RingNotices() override;

    void show(const RingNotice &notice); ///< no effect for one that is shown
    void close(quint32 cookie);          ///< unknown cookies are ignored

Q_SIGNALS:
    void snoozeChosen(quint32 cookie, int seconds);
    void stopChosen(quint32 cookie);

private:
    void send(const RingNotice &notice);
    void showAll();
    void choose(const QString &key);

    Notices::Notifier *m_notifier;
    std::map<quint32, RingNotice> m_shown;
};

} // namespace Ringer
