// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/qsparqlresult.h"

#include "platform/sparql/sparqlmailbox_p.h"

QSparqlResult::QSparqlResult(QObject *connection)
    : QObject(connection)
    , m_mailbox(std::make_shared<SparqlMailbox>(this, [this](SparqlAnswer &&answer) { take(std::move(answer)); }))
{ }

QSparqlResult::~QSparqlResult()
{
    m_mailbox->close();
}

void QSparqlResult::take(SparqlAnswer &&answer)
{
    m_answer = std::make_unique<SparqlAnswer>(std::move(answer));
    Q_EMIT finished();
}

QSparqlError QSparqlResult::lastError() const
{
    return m_answer ? m_answer->error : QSparqlError();
}

int QSparqlResult::size() const
{
    return m_answer ? int(m_answer->rows.size()) : -1;
}

bool QSparqlResult::next()
{
    return m_pos != AfterLastRow && setPos(m_pos + 1);
}

bool QSparqlResult::setPos(int row)
{
    const bool isRow = row >= 0 && row < size();
    m_pos = isRow ? row : row < 0 || !isFinished() ? BeforeFirstRow : AfterLastRow;
    return isRow;
}

QVariant QSparqlResult::value(int column) const
{
    return isValid() ? m_answer->rows.at(m_pos).value(column) : QVariant();
}

QString QSparqlResult::variableName(int column) const
{
    return m_answer ? m_answer->columns.value(column) : QString();
}
