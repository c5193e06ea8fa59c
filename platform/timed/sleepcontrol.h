// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace Astel::Timed {

/** Whoever sends the device to sleep. */
class SleepControl : public QObject
{
    Q_OBJECT

public:
    /** Whether the device shall wait a little before it sleeps. Returns at once; repeating changes nothing. */
    virtual void delaySleep(bool delayed) = 0;
    /** Facts for the health report. */
    virtual QVariantMap facts() const = 0;

signals:
    void goesToSleep();
    void resumed();
};

} // namespace Astel::Timed
