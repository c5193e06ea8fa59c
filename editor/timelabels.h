// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

class QDateTime;

namespace Touch {
class Locale;
}

/** What the editor's large time labels show, and in which order they stand. */
struct TimeLabels
{
    enum class Arrangement {
        MarkerAfter,    ///< hour, colon, minute, AM/PM
        MarkerBefore,   ///< AM/PM, hour, colon, minute
        TwentyFourHours ///< hour, colon, minute
    };

    QString hour;
    QString minute;
    std::optional<QString> marker; ///< none in the 24-hour mode, which leaves the AM/PM label as it was
    Arrangement arrangement = Arrangement::TwentyFourHours;
};

/** The labels for a local time, in the locale's own hour mode, digits, marker and order. */
TimeLabels timeLabels(const Touch::Locale &locale, const QDateTime &moment);
