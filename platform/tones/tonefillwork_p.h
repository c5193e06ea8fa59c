// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlconnectionoptions.h"
#include "platform/tones/tonefiles.h"

#include <memory>
#include <QObject>

class QFileSystemWatcher;
class QSparqlConnection;
class QSparqlError;
class QSparqlResult;
class QTimer;

namespace Tones {

/** The filler's work, which lives in its thread. One statement is under way at a time, so others are not kept waiting. */
class ToneFillWork : public QObject
{
    Q_OBJECT

public:
    ToneFillWork(const QStringList &folders, const QSparqlConnectionOptions &options);
    ~ToneFillWork() override;

    void begin();

Q_SIGNALS:
    void filled(int read);
    void failed(const QString &reason);

private:
    enum class State { Idle, Comparing, Changing };

    void scan();
    void ask();
    void compare(QSparqlResult &known);
    void changeMore();
    void recover(const QSparqlError &error);
    void finish();
    void watch(const FileScan &scan);
    [[nodiscard]] QString nextStatements();
    [[nodiscard]] QSparqlResult *run(const QString &statement, bool asks);

    const QStringList m_folders;
    const QSparqlConnectionOptions m_options;
    std::unique_ptr<QSparqlConnection> m_connection;
    QFileSystemWatcher *m_watcher = nullptr;
    QTimer *m_settling = nullptr; ///< since files changed

    // One fill
    State m_state = State::Idle;
    QHash<QString, FileState> m_files;
    QStringList m_outdated; ///< the store knows them, but not as they are
    QStringList m_unread;
    int m_read = 0;
    bool m_hasReset = false;
};

} // namespace Tones
