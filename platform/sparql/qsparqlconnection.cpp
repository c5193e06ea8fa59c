// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/qsparqlconnection.h"

#include "platform/sparql/qsparqlresult.h"
#include "platform/sparql/sparqlmailbox_p.h"
#include "platform/sparql/trackerstore_p.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString folderOf(const QSparqlConnectionOptions &options)
{
    if (!options.storeFolder().isEmpty())
        return QDir(options.storeFolder()).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QLatin1String("/clock/tones");
}

} // namespace

QSparqlConnection::QSparqlConnection(const QString &driverName, const QSparqlConnectionOptions &options,
                                     QObject *parent)
    : QObject(parent)
    , m_driverName(driverName)
    , m_store(driverName == QLatin1String("QTRACKER") ? TrackerStore::in(folderOf(options)) : nullptr)
{ }

QSparqlConnection::~QSparqlConnection() = default;

bool QSparqlConnection::isValid() const
{
    return m_store && !m_store->hasFailed();
}

QSparqlResult *QSparqlConnection::exec(const QSparqlQuery &query)
{
    auto *result = new QSparqlResult(this);
    const auto mailbox = result->m_mailbox;
    if (m_store)
        m_store->run(query, mailbox);
    else
        mailbox->post(
            {{QSparqlError::ConnectionError, QStringLiteral("unknown driver \"%1\"").arg(m_driverName)}, {}, {}});
    return result;
}

void QSparqlConnection::reset()
{
    if (m_store)
        m_store->reset();
}
