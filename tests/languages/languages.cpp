// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/languages/languages.h"

QStringList builtLanguages()
{
    return QStringLiteral(CLOCK_LANGUAGES).split(u' ');
}
