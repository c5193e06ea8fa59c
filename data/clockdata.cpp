// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "data/clockdata.h"

#include <QDir>

void initClockData()
{
    // A linker leaves the resources of a static library out unless they are asked for.
    Q_INIT_RESOURCE(clock_texts);
    Q_INIT_RESOURCE(clockdata_looks);
}
