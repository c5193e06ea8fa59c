// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

class QSqlDatabase;
class QSqlError;

namespace Astel::Timed {

/** Cookies given since a snapshot was taken are not known any more once it is restored; they are stepped over. */
inline constexpr quint32 CookiesToStepOver = 100000;

/** The tables of the store. */
namespace Schema {

inline constexpr int Version = 4;

/**
 * Brings a database from a version, 0 for an empty one, to the current one: all of it or nothing. "lastCookie" is where
 * an empty one begins to count. Answers the error of the statement that failed, an invalid one on success.
 */
[[nodiscard]] QSqlError migrate(const QSqlDatabase &database, int from, quint32 lastCookie);

} // namespace Schema

} // namespace Astel::Timed
