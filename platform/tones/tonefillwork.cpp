// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonefillwork_p.h"

#include "platform/sparql/qsparqlconnection.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/tones/tonestatements_p.h"
#include "platform/tones/tonetag_p.h"

#include <chrono>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QThread>
#include <QTimer>

namespace Tones {

using namespace std::chrono_literals;

namespace {

// Files are copied and tagged in many small steps.
constexpr auto SettlingTime = 500ms;
constexpr auto FilesInAStatement = 16;

// What can be watched until the folder itself is made.
QString nearestFolder(QString folder)
{
    while (!QFileInfo(folder).isDir() && folder != QDir::rootPath())
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

ToneFillWork::ToneFillWork(const QStringList &folders, const QSparqlConnectionOptions &options)
    : m_folders(folders)
    , m_options(options)
{ }

ToneFillWork::~ToneFillWork() = default;

void ToneFillWork::begin()
{
    m_connection = std::make_unique<QSparqlConnection>(QStringLiteral("QTRACKER"), m_options);
    m_settling = new QTimer(this);
    m_settling->setSingleShot(true);
    m_settling->setInterval(SettlingTime);
    connect(m_settling, &QTimer::timeout, this, &ToneFillWork::scan);
    m_watcher = new QFileSystemWatcher(this);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, m_settling, qOverload<>(&QTimer::start));
    connect(m_watcher, &QFileSystemWatcher::fileChanged, m_settling, qOverload<>(&QTimer::start));
    scan();
}

void ToneFillWork::scan()
{
    // What changes while the store is being changed is looked at afterwards.
    if (m_state != State::Idle) {
        m_settling->start();
        return;
    }
    auto scan = scanFolders(m_folders);
    watch(scan);
    m_files = std::move(scan.files);
    m_hasReset = false;
    m_read = 0;
    ask();
}

void ToneFillWork::watch(const FileScan &scan)
{
    QStringList wanted = scan.folders + scan.files.keys();
    for (const auto &folder : m_folders)
        wanted += nearestFolder(folder);
    const auto watched = m_watcher->directories() + m_watcher->files();
    const QSet<QString> before(watched.begin(), watched.end());
    const QSet<QString> after(wanted.begin(), wanted.end());
    const auto gone = before - after;
    const auto added = after - before;
    if (!gone.isEmpty())
        m_watcher->removePaths(gone.values());
    if (!added.isEmpty())
        m_watcher->addPaths(added.values());
}

QSparqlResult *ToneFillWork::run(const QString &statement, bool asks)
{
    const auto type = asks ? QSparqlQuery::SelectStatement : QSparqlQuery::InsertStatement;
    auto *result = m_connection->exec(QSparqlQuery(statement, type));
    connect(result, &QSparqlResult::finished, result, &QObject::deleteLater);
    return result;
}

void ToneFillWork::ask()
{
    m_state = State::Comparing;
    auto *known = run(allFilesQuery(), true);
    connect(known, &QSparqlResult::finished, this, [this, known] {
        if (known->hasError())
            recover(known->lastError());
        else
            compare(*known);
    });
}

void ToneFillWork::compare(QSparqlResult &known)
{
    auto unread = m_files;
    m_outdated.clear();
    while (known.next()) {
        const auto path = pathOf(known.stringValue(0));
        const FileState state{known.value(1).toDateTime().toSecsSinceEpoch(), known.value(2).toLongLong()};
        const auto file = m_files.constFind(path);
        if (file != m_files.constEnd() && *file == state)
            unread.remove(path);
        else
            m_outdated += path;
    }
    m_unread = unread.keys();
    m_state = State::Changing;
    changeMore();
}

QString ToneFillWork::nextStatements()
{
    QString statements;
    for (int count = 0; count < FilesInAStatement && !m_outdated.isEmpty(); ++count)
        statements += removal(m_outdated.takeLast());
    if (!statements.isEmpty())
        return statements;
    for (int count = 0; count < FilesInAStatement && !m_unread.isEmpty(); ++count) {
        const auto path = m_unread.takeLast();
        statements += insertion(path, m_files.value(path), titleOf(path));
        ++m_read;
    }
    return statements;
}

void ToneFillWork::changeMore()
{
    if (QThread::currentThread()->isInterruptionRequested())
        return;
    const auto statements = nextStatements();
    if (statements.isEmpty()) {
        finish();
        return;
    }
    auto *change = run(statements, false);
    connect(change, &QSparqlResult::finished, this, [this, change] {
        if (change->hasError())
            recover(change->lastError());
        else
            changeMore();
    });
}

// A store that was damaged while it was closed opens, but does not answer.
void ToneFillWork::recover(const QSparqlError &error)
{
    if (m_hasReset || error.type() == QSparqlError::ConnectionError) {
        m_state = State::Idle;
        Q_EMIT failed(error.message());
        return;
    }
    m_hasReset = true;
    m_connection->reset();
    ask();
}

void ToneFillWork::finish()
{
    m_state = State::Idle;
    Q_EMIT filled(m_read);
}

} // namespace Tones
