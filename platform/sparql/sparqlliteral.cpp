// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/sparqlliteral.h"

QString sparqlLiteral(const QString &text)
{
    QString literal(QLatin1Char('"'));
    for (const auto c : text) {
        switch (c.unicode()) {
        case u'"':
        case u'\\':
            literal += QLatin1Char('\\') + c;
            break;
        case u'\n':
            literal += QLatin1String("\\n");
            break;
        case u'\r':
            literal += QLatin1String("\\r");
            break;
        case u'\0':
            // The store takes its texts up to the first of these.
            break;
        default:
            literal += c;
        }
    }
    return literal + QLatin1Char('"');
}
