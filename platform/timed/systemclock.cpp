// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/systemclock.h"

#include <QDateTime>

namespace Astel::Timed {

qint64 SystemClock::now() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

} // namespace Astel::Timed
