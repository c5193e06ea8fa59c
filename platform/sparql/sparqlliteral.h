// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** Any text as a quoted literal of a query, so that nothing in it can end the literal. */
[[nodiscard]] QString sparqlLiteral(const QString &text);
