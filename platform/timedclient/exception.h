// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace Astel::Timed {

/** Raised by Event where an argument makes no sense; the message says which and why. */
class Exception : public std::exception
{
public:
    explicit Exception(const QString &message);

    const QString &message() const { return m_message; }
    /** The message in UTF-8. */
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

} // namespace Astel::Timed
