// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>
#include <sys/resource.h>

namespace Support {

/** While it lives no file can grow, as on a full disk. */
class FullDisk
{
public:
    FullDisk();
    ~FullDisk();
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before = {};
};

} // namespace Support
