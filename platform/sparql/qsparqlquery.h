// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** A SPARQL text and whether it asks or changes; a value. */
class QSparqlQuery
{
public:
    enum StatementType { SelectStatement, InsertStatement, DeleteStatement };

    QSparqlQuery() = default;
    explicit QSparqlQuery(const QString &text, StatementType type = SelectStatement)
        : m_text(text)
        , m_type(type)
    { }

    [[nodiscard]] QString query() const { return m_text; }
    [[nodiscard]] StatementType type() const { return m_type; }

private:
    QString m_text;
    StatementType m_type = SelectStatement;
};
