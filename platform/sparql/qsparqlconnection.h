// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlconnectionoptions.h"
#include "platform/sparql/qsparqlquery.h"

#include <memory>
#include <QObject>

class QSparqlResult;
class TrackerStore;

/**
 * A way to a store of facts. There is one driver, "QTRACKER": an embedded database with the Nepomuk ontology. It is
 * opened in a thread of its own, where all queries run in the order in which they were asked; connections of a process to
 * one store share it. A store that is damaged when it is opened is replaced by an empty one.
 */
class QSparqlConnection : public QObject
{
    Q_OBJECT

public:
    explicit QSparqlConnection(const QString &driverName,
                               const QSparqlConnectionOptions &options = QSparqlConnectionOptions(),
                               QObject *parent = nullptr);
    ~QSparqlConnection() override;

    /** False for an unknown driver, and once it turned out that the store cannot be opened; never waits for that. */
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] QString driverName() const { return m_driverName; }

    /** Answers at once; the rows or the error come with the result's finished(). It is a child of the connection. */
    [[nodiscard]] QSparqlResult *exec(const QSparqlQuery &query);
    /** Puts an empty store in the place of one whose answers are errors, before what is asked from now on. */
    void reset();

private:
    const QString m_driverName;
    std::shared_ptr<TrackerStore> m_store; ///< null for an unknown driver
};
