// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** Asks the store of tones for the title of the file at a path. */
QString titleQuery(const QString &path);
