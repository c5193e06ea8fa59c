// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

namespace Support {

/** Collects what goes through Qt's message handler while it lives; one at a time. */
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY(LogCapture)

    /** Every line so far, in order, trimmed as Qt's debug stream leaves it. */
    QStringList lines() const;
    /** The lines of one level only. */
    QStringList lines(QtMsgType level) const;
    void clear();
};

} // namespace Support
