// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

/** The languages that the catalogues are built in, as the build files list them: "ar", "pt_BR". */
QStringList builtLanguages();
