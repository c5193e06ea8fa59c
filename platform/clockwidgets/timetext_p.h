// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QTime>

namespace Touch {
class Locale;
}

/// A time of day as the user's locale writes it, with the half of the day apart from the digits.
struct TimeText
{
    QString digits;
    QString marker; ///< empty with 24 hours
    bool markerFirst = false;

    /// All of it, as it is read out.
    QString whole() const;
};

/// Empty for an invalid time.
TimeText timeText(const Touch::Locale &locale, const QTime &time);
/// A number in the locale's digits, with its zero in front of a short one.
QString localeDigits(const Touch::Locale &locale, int number, int width);
