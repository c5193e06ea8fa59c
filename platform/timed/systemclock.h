// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/clock.h"

namespace Astel::Timed {

/** The clock of the machine. */
class SystemClock final : public Clock
{
public:
    qint64 now() const override;
};

} // namespace Astel::Timed
