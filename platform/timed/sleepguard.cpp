// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/sleepguard.h"

#include "platform/timed/ringing.h"
#include "platform/timed/schedule.h"
#include "platform/timed/sleepcontrol.h"

namespace Astel::Timed {

SleepGuard::SleepGuard(const Schedule &schedule, const Ringing &ringing, SleepControl &control)
    : m_control(control)
{
    connect(&schedule, &Schedule::arming, this, [this] { update(m_arming, true); });
    connect(&schedule, &Schedule::armed, this, [this] { update(m_arming, false); });
    connect(&ringing, &Ringing::begun, this, [this] { update(m_ringing, true); });
    connect(&ringing, &Ringing::ended, this, [this] { update(m_ringing, false); });
}

void SleepGuard::update(bool &reason, bool holds)
{
    reason = holds;
    m_control.delaySleep(m_arming || m_ringing);
}

} // namespace Astel::Timed
