#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""every_zone.py MOMENTSOF FIRST-YEAR LAST-YEAR MINUTES: every zone of the system's data, every transition in these
years, daily times every so many minutes around it, with and without filling gaps. The expected moments come from
Python's zoneinfo, which shares no code with the daemon's rules."""

import datetime
import functools
import io
import pathlib
import subprocess
import sys
import zoneinfo

DATA = "/usr/share/zoneinfo"
DAY = 86400
HOUR = 3600


def offset(zone, moment):
    return datetime.datetime.fromtimestamp(moment, zone).utcoffset()


def transitions(zone, begin, end):
    """To the second; two within one day that cancel each other are not seen, and do not exist."""
    found = []
    for day in range(begin, end, DAY):
        low, high = day, day + DAY
        before = offset(zone, low)
        if offset(zone, high) == before:
            continue
        while high - low > 1:
            middle = (low + high) // 2
            if offset(zone, middle) == before:
                low = middle
            else:
                high = middle
        found.append(high)
    return found


def expected(zone, hour, minute, fill, after):
    today = datetime.datetime.fromtimestamp(after, zone).date()
    moments = []
    for days in range(-1, 4):
        date = today + datetime.timedelta(days=days)
        # With fold 0 a skipped time is read with the offset before the gap, and a repeated one is the first of two.
        local = datetime.datetime(date.year, date.month, date.day, hour, minute, tzinfo=zone)
        moment = int(local.timestamp())
        back = datetime.datetime.fromtimestamp(moment, zone).replace(tzinfo=None, fold=0)
        if moment > after and (fill or back == local.replace(tzinfo=None)):
            moments.append(moment)
    return min(moments)


@functools.cache
def table(data, begin, end, minutes):
    """Question and answer for one zone's data; many zones are but other names of one."""
    zone = zoneinfo.ZoneInfo.from_file(io.BytesIO(data))
    result = []
    for transition in transitions(zone, begin, end):
        for time in range(0, 24 * 60, minutes):
            # From two days before the transition to a day after it.
            after = transition - 2 * DAY + time * 7 % 72 * HOUR
            for fill in (0, 1):
                question = time // 60, time % 60, fill, after
                result.append((question, expected(zone, *question)))
    return result


def rows(first_year, last_year, minutes):
    begin, end = (int(datetime.datetime(year, 1, 1, tzinfo=datetime.timezone.utc).timestamp())
                  for year in (first_year, last_year + 1))
    for name in sorted(zoneinfo.available_timezones()):
        for question, wanted in table(pathlib.Path(DATA, name).read_bytes(), begin, end, minutes):
            yield " ".join(map(str, (name, *question))), wanted


def main():
    zoneinfo.reset_tzpath([DATA])
    program, first_year, last_year, minutes = sys.argv[1], *(int(word) for word in sys.argv[2:])
    asked = list(rows(first_year, last_year, minutes))
    lines = "".join(f"{question}\n" for question, _ in asked)
    answers = subprocess.run([program], input=lines, capture_output=True, text=True, check=True).stdout.split()
    differences = 0
    for (question, wanted), answer in zip(asked, answers, strict=True):
        if wanted != int(answer):
            differences += 1
            print(f"{question}: {answer} instead of {wanted}")
    print(f"{len(asked)} rows, {differences} differences")
    sys.exit(differences > 0 or not asked)


if __name__ == "__main__":
    main()
