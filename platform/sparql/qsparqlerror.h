// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** Why a query has no answer; a value. */
class QSparqlError
{
public:
    enum ErrorType {
        NoError,
        ConnectionError, ///< there is no such driver, or the store cannot be opened
        StatementError,  ///< the store does not understand the query
        BackendError,    ///< the store failed while it answered
    };

    QSparqlError() = default;
    QSparqlError(ErrorType type, const QString &message)
        : m_type(type)
        , m_message(message)
    { }

    [[nodiscard]] bool isValid() const { return m_type != NoError; }
    [[nodiscard]] ErrorType type() const { return m_type; }
    [[nodiscard]] QString message() const { return m_message; }

private:
    ErrorType m_type = NoError;
    QString m_message;
};
