// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlerror.h"

#include <QList>
#include <QStringList>
#include <QVariant>

/** What the store says to a query. */
struct SparqlAnswer
{
    QSparqlError error;
    QStringList columns;
    QList<QVariantList> rows;
};
