// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/noticerecord.h"

#include "platform/notices/logging.h"

#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace Notices {

NoticeRecord::NoticeRecord(const QString &program)
    : m_path(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + '/' + program + ".notices")
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromLatin1(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const uint number = line.section(' ', 1).toUInt();
        if (line.startsWith(':') && number != 0)
            m_entries.append({line.section(' ', 0, 0), number});
    }
}

void NoticeRecord::add(const QString &server, uint number)
{
    m_entries.append({server, number});
    write();
}

void NoticeRecord::remove(uint number)
{
    if (m_entries.removeIf([number](const Entry &entry) { return entry.number == number; }) > 0)
        write();
}

void NoticeRecord::clear()
{
    if (m_entries.isEmpty())
        return;
    m_entries.clear();
    write();
}

void NoticeRecord::write() const
{
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly)) {
        qCWarning(lcNotices, "notices cannot be remembered, ignoring: %ls", qUtf16Printable(file.errorString()));
        return;
    }
    for (const Entry &entry : m_entries)
        file.write(entry.server.toLatin1() + ' ' + QByteArray::number(entry.number) + '\n');
    // What commit() itself cannot write it does not tell.
    if (!file.flush() || !file.commit())
        qCWarning(lcNotices, "notices are not remembered, ignoring: %ls", qUtf16Printable(file.errorString()));
}

} // namespace Notices
