// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QObject>

/// What time it is, and a beat on every whole second or minute of the clock on the wall. Owned by the widget that
/// shows it; GUI thread only.
class ClockTicker : public QObject
{
    Q_OBJECT

public:
    enum class Beat { Second, Minute };

    virtual QDateTime now() const = 0;
    /// Starts, or goes on at the new beat.
    virtual void start(Beat beat) = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    /// A whole second or minute has begun, or the clock or the zone was set.
    void ticked();
};
