// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/logging.h"

namespace Astel::Timed {

Q_LOGGING_CATEGORY(lcTimed, "timed", QtInfoMsg)

} // namespace Astel::Timed
