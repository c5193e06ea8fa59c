// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>

/** Stops the clock that the alarms read at a moment, while it lives. */
class StoppedClock
{
public:
    explicit StoppedClock(const QDateTime &now);
    ~StoppedClock();
    Q_DISABLE_COPY(StoppedClock)

    void set(const QDateTime &now);
};
