// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/messages.h"

#include <cstdio>

namespace Backup {

namespace {

/** Text that may come from a file: nothing of it reaches the terminal but what
 * can be seen. */
QByteArray line(QString text)
{
    for (QChar &character : text) {
        if (!character.isPrint() && !character.isSurrogate())
            character = ' ';
    }
    return text.toUtf8() + '\n';
}

} // namespace

void say(const QString &text)
{
    std::fputs(line(text).constData(), stdout);
}

void complain(const QString &text)
{
    std::fputs(line(QLatin1String(ProgramName) + ": " + text).constData(), stderr);
}

QString counted(qsizetype count, const QString &what)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(what, count == 1 ? "" : "s");
}

} // namespace Backup
