// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/restorationteller.h"

#include "platform/notices/notifier.h"

#include <utility>

namespace Astel::Timed {

RestorationTeller::RestorationTeller(Notices::Notifier &notifier)
    : m_notifier(notifier)
{
    connect(&notifier, &Notices::Notifier::appeared, this, &RestorationTeller::show);
}

void RestorationTeller::tell()
{
    m_isUntold = true;
    show();
}

void RestorationTeller::show()
{
    // While it is under way there is nothing more to tell.
    if (!std::exchange(m_isUntold, false))
        return;
    //% "Alarms were restored"
    const QString summary = qtTrId("qtn_timed_restored");
    //% "The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please "
    //% "look through your alarms."
    const Notices::Notice notice{summary, qtTrId("qtn_timed_restored_why"), {}, QStringLiteral("x-alarm.restored")};
    m_notifier.show(notice, [this](bool shown) { m_isUntold = !shown; });
}

} // namespace Astel::Timed
