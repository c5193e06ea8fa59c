// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace Touch {

/** Where the keys of a JSON text stand: Qt's documents keep no positions. The text must be valid JSON. */
class JsonLines
{
public:
    JsonLines() = default;
    explicit JsonLines(const QByteArray &text);

    /** The line of the key that the path of keys leads to, from 1; that of the innermost key there is. */
    int lineOf(QStringList path) const;
    /** The path of the first key that its object holds twice; empty if there is none. */
    QStringList repeatedKey() const { return m_repeated; }

    static int lineAt(const QByteArray &text, qsizetype offset);

private:
    void enterKey(const QByteArray &key, int line);

    QHash<QStringList, int> m_lines;
    QStringList m_repeated;
    QStringList m_path; ///< while reading
};

} // namespace Touch
