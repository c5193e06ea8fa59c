// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

namespace Astel::Timed {

/** The time of day as the daemon sees it. */
class Clock
{
public:
    virtual ~Clock() = default;

    /** Milliseconds since the epoch; may jump in both directions. */
    virtual qint64 now() const = 0;
};

} // namespace Astel::Timed
