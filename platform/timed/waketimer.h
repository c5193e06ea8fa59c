// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QObject>

namespace Astel::Timed {

/** The one timer that wakes the daemon, and the device where it may, at a moment of the wall clock. */
class WakeTimer : public QObject
{
    Q_OBJECT

public:
    /** Milliseconds since the epoch; nothing disarms. Notices of a set clock come in either case. */
    virtual void arm(std::optional<qint64> moment) = 0;
    /** The moment read back from the timer, in milliseconds; nothing where it is not armed. */
    virtual std::optional<qint64> armedFor() const = 0;
    virtual QString kind() const = 0;
    virtual bool wakesFromSleep() const = 0;
    /** Why it cannot wake the device; empty where it can. */
    virtual QString reason() const = 0;

signals:
    void expired();
    void clockSet();
};

} // namespace Astel::Timed
