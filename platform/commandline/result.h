// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/expected/expected.h"

#include <QString>

/** How the program ends. */
enum class Exit { Done = 0, Failed = 1, WrongUsage = 2 };

/** Why something was not done; the text is one line for the user, empty where the output has told it. */
struct Problem
{
    Exit exit = Exit::Failed;
    QString text;
};

inline Problem failure(const QString &text)
{
    return {Exit::Failed, text};
}

inline Problem wrongUsage(const QString &text)
{
    return {Exit::WrongUsage, text};
}

/** What a function that can fail answers. */
template <typename Value = Done>
using Result = Expected<Value, Problem>;
