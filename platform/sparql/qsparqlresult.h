// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlerror.h"

#include <memory>
#include <QObject>
#include <QVariant>

struct SparqlAnswer;
class SparqlMailbox;

/**
 * The answer to one query, which arrives later: finished() comes once, from the event loop of the thread that asked.
 * Until then there are no rows. It may be deleted at any time, and goes with its connection if it was not.
 */
class QSparqlResult : public QObject
{
    Q_OBJECT

public:
    enum Position { BeforeFirstRow = -1, AfterLastRow = -2 };

    ~QSparqlResult() override;

    [[nodiscard]] bool isFinished() const { return m_answer != nullptr; }
    [[nodiscard]] bool hasError() const { return lastError().isValid(); }
    [[nodiscard]] QSparqlError lastError() const;
    /** The number of rows; -1 before it has finished. */
    [[nodiscard]] int size() const;

    /** Row numbers, or Position. */
    [[nodiscard]] int pos() const { return m_pos; }
    /** Whether there is such a row to stand on. */
    bool first() { return setPos(0); }
    bool next();
    bool setPos(int row);
    [[nodiscard]] bool isValid() const { return m_pos >= 0; }

    /** Of the row it stands on; invalid where there is none, no such column, or nothing in it. */
    [[nodiscard]] QVariant value(int column) const;
    [[nodiscard]] QString stringValue(int column) const { return value(column).toString(); }
    /** The name of the variable of a column, without question mark. */
    [[nodiscard]] QString variableName(int column) const;

Q_SIGNALS:
    void finished();

private:
    friend class QSparqlConnection;

    explicit QSparqlResult(QObject *connection);
    void take(SparqlAnswer &&answer);

    std::shared_ptr<SparqlMailbox> m_mailbox;
    std::unique_ptr<SparqlAnswer> m_answer;
    int m_pos = BeforeFirstRow;
};
