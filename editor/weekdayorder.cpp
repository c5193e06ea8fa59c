// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/weekdayorder.h"

void weekdaysToPlaces(QList<int> &days, int firstDayOfWeek)
{
    for (int &day : days)
        day = (DaysPerWeek - firstDayOfWeek + day) % DaysPerWeek;
}

void placesToWeekdays(QList<int> &places, int firstDayOfWeek)
{
    for (int &place : places)
        place = (firstDayOfWeek + place) % DaysPerWeek;
}
