// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/jsonlines_p.h"

#include <QList>

namespace Touch {

namespace {

/** The offset of the quote that ends the string that starts with the one at the given offset. */
qsizetype endOfString(const QByteArray &text, qsizetype start)
{
    qsizetype at = start + 1;
    while (at < text.size() && text[at] != '"')
        at += text[at] == '\\' ? 2 : 1;
    return at;
}

} // namespace

JsonLines::JsonLines(const QByteArray &text)
{
    QList<bool> isObject; // what is open, from the outside in
    bool expectsKey = false;
    int line = 1;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\n') {
            ++line;
        } else if (c == '"') {
            const qsizetype end = endOfString(text, at);
            if (expectsKey)
                enterKey(text.mid(at + 1, end - at - 1), line);
            expectsKey = false;
            at = end;
        } else if (c == '{' || c == '[') {
            isObject.append(c == '{');
            expectsKey = c == '{';
        } else if (c == ',' && isObject.constLast()) {
            m_path.removeLast();
            expectsKey = true;
        } else if (c == '}' || c == ']') {
            if (isObject.takeLast() && !expectsKey)
                m_path.removeLast();
            expectsKey = false;
        }
    }
}

void JsonLines::enterKey(const QByteArray &key, int line)
{
    m_path.append(QString::fromUtf8(key));
    if (m_repeated.isEmpty() && m_lines.contains(m_path))
        m_repeated = m_path;
    m_lines.insert(m_path, line);
}

int JsonLines::lineOf(QStringList path) const
{
    while (!path.isEmpty() && !m_lines.contains(path))
        path.removeLast();
    return m_lines.value(path, 1);
}

int JsonLines::lineAt(const QByteArray &text, qsizetype offset)
{
    return 1 + int(text.left(offset).count('\n'));
}

} // namespace Touch
