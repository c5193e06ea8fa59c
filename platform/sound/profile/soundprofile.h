// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Sound {

/**
 * What the system's sound profile says under a key ("group/key"). Of its ini files, the first that names the key has
 * its say, also with an empty text; none does where no file names it. A file that is missing names nothing. They are
 * read each time.
 */
[[nodiscard]] std::optional<QString> profileValue(const QStringList &files, const QString &key);

} // namespace Sound
