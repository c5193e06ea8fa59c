// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/trackerstore_p.h"

#include "platform/sparql/sparqlmailbox_p.h"

#include <libtracker-sparql/tracker-sparql.h>
#include <QDateTime>
#include <QDir>
#include <QHash>

namespace {

struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <typename T>
using Owned = std::unique_ptr<T, Unref>;

QString takeText(GError *error)
{
    if (!error)
        return QStringLiteral("unknown error");
    auto text = QString::fromUtf8(error->message);
    g_error_free(error);
    return text;
}

QSparqlError errorOf(GError *error)
{
    const bool isOfQuery = error && error->domain == TRACKER_SPARQL_ERROR
        && (error->code == TRACKER_SPARQL_ERROR_PARSE || error->code == TRACKER_SPARQL_ERROR_UNKNOWN_CLASS
            || error->code == TRACKER_SPARQL_ERROR_UNKNOWN_PROPERTY || error->code == TRACKER_SPARQL_ERROR_TYPE
            || error->code == TRACKER_SPARQL_ERROR_CONSTRAINT);
    return {isOfQuery ? QSparqlError::StatementError : QSparqlError::BackendError, takeText(error)};
}

QVariant valueAt(TrackerSparqlCursor *cursor, int column)
{
    const auto text = [&] { return QString::fromUtf8(tracker_sparql_cursor_get_string(cursor, column, nullptr)); };
    switch (tracker_sparql_cursor_get_value_type(cursor, column)) {
    case TRACKER_SPARQL_VALUE_TYPE_UNBOUND:
        return {};
    case TRACKER_SPARQL_VALUE_TYPE_INTEGER:
        return qlonglong(tracker_sparql_cursor_get_integer(cursor, column));
    case TRACKER_SPARQL_VALUE_TYPE_DOUBLE:
        return tracker_sparql_cursor_get_double(cursor, column);
    case TRACKER_SPARQL_VALUE_TYPE_BOOLEAN:
        return bool(tracker_sparql_cursor_get_boolean(cursor, column));
    case TRACKER_SPARQL_VALUE_TYPE_DATETIME:
        return QDateTime::fromString(text(), Qt::ISODateWithMs);
    default:
        return text();
    }
}

SparqlAnswer readAll(TrackerSparqlCursor *cursor)
{
    SparqlAnswer answer;
    GError *error = nullptr;
    while (tracker_sparql_cursor_next(cursor, nullptr, &error)) {
        const auto columns = tracker_sparql_cursor_get_n_columns(cursor);
        while (answer.columns.size() < columns) {
            const auto column = int(answer.columns.size());
            answer.columns += QString::fromUtf8(tracker_sparql_cursor_get_variable_name(cursor, column));
        }
        QVariantList row;
        for (int column = 0; column < columns; ++column)
            row += valueAt(cursor, column);
        answer.rows += row;
    }
    return error ? SparqlAnswer{errorOf(error), {}, {}} : answer;
}

} // namespace

std::shared_ptr<TrackerStore> TrackerStore::in(const QString &folder)
{
    static QMutex mutex;
    static QHash<QString, std::weak_ptr<TrackerStore>> stores;
    const QMutexLocker lock(&mutex);
    auto store = stores.value(folder).lock();
    if (!store) {
        store = std::make_shared<TrackerStore>(folder);
        stores.insert(folder, store);
    }
    return store;
}

TrackerStore::TrackerStore(const QString &folder)
    : m_folder(folder)
{
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(-1);
    m_thread.start([this] { open(); });
}

TrackerStore::~TrackerStore()
{
    m_thread.clear();
    m_thread.start([this] { close(); });
    m_thread.waitForDone();
}

void TrackerStore::run(const QSparqlQuery &query, const std::shared_ptr<SparqlMailbox> &mailbox)
{
    m_thread.start([this, query, mailbox] { mailbox->post(answer(query)); });
}

void TrackerStore::reset()
{
    m_thread.start([this] {
        close();
        openAnew();
    });
}

void TrackerStore::open()
{
    QDir().mkpath(m_folder);
    m_connection = connectTo(&m_reason);
    // It holds nothing that cannot be gathered again.
    if (!m_connection)
        openAnew();
}

void TrackerStore::openAnew()
{
    QDir(m_folder).removeRecursively();
    QDir().mkpath(m_folder);
    m_connection = connectTo(&m_reason);
    m_hasFailed = m_connection == nullptr;
}

void TrackerStore::close()
{
    if (m_connection)
        tracker_sparql_connection_close(m_connection);
    g_clear_object(&m_connection);
}

TrackerSparqlConnection *TrackerStore::connectTo(QString *reason) const
{
    const Owned<GFile> folder(g_file_new_for_path(QFile::encodeName(m_folder).constData()));
    const Owned<GFile> ontology(tracker_sparql_get_ontology_nepomuk());
    GError *error = nullptr;
    auto *connection = tracker_sparql_connection_new(TRACKER_SPARQL_CONNECTION_FLAGS_NONE, folder.get(), ontology.get(),
                                                     nullptr, &error);
    if (!connection)
        *reason = takeText(error);
    return connection;
}

SparqlAnswer TrackerStore::answer(const QSparqlQuery &query) const
{
    if (!m_connection)
        return {{QSparqlError::ConnectionError, m_reason}, {}, {}};
    const auto text = query.query().toUtf8();
    GError *error = nullptr;
    if (query.type() != QSparqlQuery::SelectStatement) {
        tracker_sparql_connection_update(m_connection, text.constData(), nullptr, &error);
        return {error ? errorOf(error) : QSparqlError(), {}, {}};
    }
    const Owned<TrackerSparqlCursor> cursor(
        tracker_sparql_connection_query(m_connection, text.constData(), nullptr, &error));
    return cursor ? readAll(cursor.get()) : SparqlAnswer{errorOf(error), {}, {}};
}
