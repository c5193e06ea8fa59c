// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <optional>
#include <QByteArray>
#include <QList>
#include <QString>

class QTimeZone;

namespace Astel::Timed::Rules {

/**
 * A time zone of the system's data as stretches of constant offset. Copies are cheap and share what has been
 * read. For one thread. Creating an unknown zone fails with a text; a zone that exists answers every
 * question.
 */
class Zone
{
public:
    /** A stretch of time, seconds since the epoch, in which one offset is in force: from "from" to before
     * "to". */
    struct Stretch
    {
        qint64 from = 0;
        qint64 to = 0;
        qint64 offset = 0; ///< seconds east of UTC
        bool summerTime = false;
    };

    /** A zone by its IANA identifier or POSIX description; "error" says why there is none. */
    [[nodiscard]] static std::optional<Zone> create(const QByteArray &id, QString *error = nullptr);
    /** The zone of this process: the environment's TZ, otherwise that of the system. */
    [[nodiscard]] static std::optional<Zone> local(QString *error = nullptr);

    QByteArray id() const;
    Stretch stretchAt(qint64 moment) const;
    /** The stretches that the time between two moments touches, in order; both ends included. */
    QList<Stretch> stretches(qint64 from, qint64 to) const;

private:
    struct Data;

    explicit Zone(const QTimeZone &zone);
    const QList<Stretch> &era(qint64 number) const;

    std::shared_ptr<Data> m_data;
};

} // namespace Astel::Timed::Rules
