// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>

namespace Notices {

/**
 * The notices of a program that are on display, written down where they outlive it but not the session: who comes after
 * one that was killed can take them back. A file that cannot be written is logged; then nothing is remembered.
 */
class NoticeRecord
{
public:
    struct Entry
    {
        QString server; ///< its unique name on the bus
        uint number;
    };

    /** With what the last program of this name has left. */
    explicit NoticeRecord(const QString &program);

    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    void add(const QString &server, uint number);
    void remove(uint number); ///< no effect without one
    void clear();

private:
    void write() const;

    const QString m_path;
    QList<Entry> m_entries;
};

} // namespace Notices
