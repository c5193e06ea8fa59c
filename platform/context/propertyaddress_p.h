// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Context {

/** The bus name that stands for a key. */
QString serviceOf(const QString &key);
/** The object path under which its value is read. */
QString pathOf(const QString &key);

} // namespace Context
