// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <atomic>
#include <QMutex>
#include <QString>
#include <QThreadPool>

namespace Astel::Timed {

/**
 * Moves the log of the database into it and copies it beside itself, in a thread and over a connection of its own, so
 * that nobody waits for it. A copy is checked and on the disk before it takes the place of the last one; a failure is
 * logged and leaves that. Waits for the copy under way when it is destroyed.
 */
class SnapshotWriter
{
public:
    explicit SnapshotWriter(const QString &path);
    ~SnapshotWriter();
    Q_DISABLE_COPY(SnapshotWriter)

    /** Asks for a copy of what is committed by now; returns at once. */
    void start();
    void wait() { m_thread.waitForDone(); }
    /** Whether the copy that was asked for last has failed, or is still under way. */
    bool isOwed() const { return m_owed; }
    /** "ok", or what was wrong with the database when it was last copied. */
    QString integrity() const;

private:
    void write();
    /** Answers what went wrong, or nothing. */
    QString copy(const QString &target);

    const QString m_path;
    QThreadPool m_thread;
    std::atomic<bool> m_asked = false;
    std::atomic<bool> m_owed = false;
    mutable QMutex m_mutex;
    QString m_integrity = QStringLiteral("ok");
};

} // namespace Astel::Timed
