// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/notices/buspresence.h"
#include "platform/notices/noticerecord.h"
#include "platform/notices/notifier.h"

#include <memory>
#include <QDBusConnection>
#include <QHash>

class QDBusError;

namespace Notices {

/**
 * The notification server of the desktop, on the session bus; started by the bus where that can. One that is there and
 * does not show a notice gets another chance or two. Takes back the tagged notices that a program of the same name has
 * left when it was killed.
 */
class BusNotifier final : public Notifier
{
    Q_OBJECT

public:
    /** The title is what the server calls the program. */
    BusNotifier(const QDBusConnection &bus, const QString &program, const QString &title);

    void show(const Notice &notice, const std::function<void(bool)> &done) override;
    void close(const QString &tag) override;
    bool isPresent() const override { return m_presence.isPresent(); }
    /** Closes what a program has left; only for one that runs no more. */
    void takeBack(NoticeRecord &record);

private slots:
    void actionInvoked(uint id, const QString &key);

private:
    /** A notice on its way. */
    struct Request
    {
        Notice notice;
        std::function<void(bool)> done;
        int failures = 0;
    };

    /** What the server can do. */
    void ask(const std::shared_ptr<Request> &request);
    void send(const std::shared_ptr<Request> &request, const QString &body);
    void fail(const std::shared_ptr<Request> &request, const QDBusError &error);
    void keepNumber(const QString &tag, const QString &server, uint number);
    void withdraw(uint number);

    QDBusConnection m_bus;
    const QString m_title;
    NoticeRecord m_record;
    BusPresence m_presence;
    QHash<QString, uint> m_tagged; ///< tags and the numbers of their notices, 0 while one is under way
    QHash<QString, std::shared_ptr<Request>> m_asked; ///< by tag, until they are sent
};

} // namespace Notices
