// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/expected/expected.h"

#include <QString>

namespace Astel::Timed {

/** Why something was not done: the name of a bus error and a text for people. */
struct Error
{
    QString name;
    QString text;
};

/** What a function that can fail answers. */
template <typename Value = Done>
using Result = Expected<Value, Error>;

} // namespace Astel::Timed
