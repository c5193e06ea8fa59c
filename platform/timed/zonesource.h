// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/rules/zone.h"

#include <QObject>

namespace Astel::Timed {

/** The time zone the user lives in. */
class ZoneSource : public QObject
{
    Q_OBJECT

public:
    virtual const Rules::Zone &zone() const = 0;

signals:
    void changed();
};

} // namespace Astel::Timed
