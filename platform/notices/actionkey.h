// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

namespace Notices {

/** The key of an action that is about an alarm; the prefix is unique on the whole desktop and ends with a dot. */
[[nodiscard]] QString actionKey(const char *prefix, quint32 cookie);
/** The alarm, where it is such a key of this prefix. */
[[nodiscard]] std::optional<quint32> cookieOfAction(const char *prefix, const QString &key);

} // namespace Notices
