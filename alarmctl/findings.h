// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmctl/healthfacts.h"

enum class Mark {
    Good,
    Warning, ///< the next alarm is heard, but not as it should be, or not always
    Bad,     ///< it is not heard
};

/** One thing that was looked at. */
struct Finding
{
    Mark mark = Mark::Good;
    QString subject; ///< as in "sound output"
    QString text;
};

/** The answer to whether the next alarm will ring. */
struct Verdict
{
    Mark mark = Mark::Good;
    QString text;
};

/** What the facts say, the most important first; depends on nothing else. */
QList<Finding> findingsOf(const HealthFacts &facts);
/** Bad where a finding keeps the next alarm from being heard; without an alarm only daemon and storage count. */
Verdict verdictOf(const HealthFacts &facts, const QList<Finding> &findings);
