// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlquery.h"

#include <atomic>
#include <memory>
#include <QThreadPool>

struct SparqlAnswer;
class SparqlMailbox;
typedef struct _TrackerSparqlConnection TrackerSparqlConnection;

/** The embedded database of one folder, and the thread in which it works. Callable from any thread. */
class TrackerStore
{
public:
    /** The one of this process for the folder, made when there is none; it begins to open at once. */
    [[nodiscard]] static std::shared_ptr<TrackerStore> in(const QString &folder);
    explicit TrackerStore(const QString &folder);
    ~TrackerStore();

    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }
    void run(const QSparqlQuery &query, const std::shared_ptr<SparqlMailbox> &mailbox);
    void reset();

private:
    // In the thread
    void open();
    void close();
    void openAnew();
    [[nodiscard]] TrackerSparqlConnection *connectTo(QString *reason) const;
    [[nodiscard]] SparqlAnswer answer(const QSparqlQuery &query) const;

    const QString m_folder;
    std::atomic<bool> m_hasFailed = false;

    // The thread's own
    TrackerSparqlConnection *m_connection = nullptr;
    QString m_reason;

    QThreadPool m_thread;
};
