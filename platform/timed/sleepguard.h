// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Astel::Timed {

class Ringing;
class Schedule;
class SleepControl;

/** Delays the device's sleep while the timer is being armed and while anything rings. */
class SleepGuard : public QObject
{
    Q_OBJECT

public:
    SleepGuard(const Schedule &schedule, const Ringing &ringing, SleepControl &control);

private:
    void update(bool &reason, bool holds);

    SleepControl &m_control;
    bool m_arming = false;
    bool m_ringing = false;
};

} // namespace Astel::Timed
