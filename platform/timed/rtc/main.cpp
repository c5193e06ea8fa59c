// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rtc/bootmoments.h"
#include "platform/timed/rtc/wakealarm.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>

namespace {

int printUsage()
{
    std::cerr << "usage: clock-rtc [--moments FOLDER] [--rtc FOLDER]\n"
                 "Sets the hardware clock to turn the device on for the next alarm that asks for it.\n";
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    const char *moments = "/var/lib/clock-rtc";
    const char *clock = "/sys/class/rtc/rtc0";
    for (int i = 1; i < argc; i += 2) {
        if (i + 1 == argc)
            return printUsage();
        if (std::strcmp(argv[i], "--moments") == 0)
            moments = argv[i + 1];
        else if (std::strcmp(argv[i], "--rtc") == 0)
            clock = argv[i + 1];
        else
            return printUsage();
    }
    const long long now = std::time(nullptr);
    const auto moment = Rtc::nextBootMoment(moments, now);
    if (!moment)
        return EXIT_SUCCESS;
    const long long wake = Rtc::wakeTime(*moment, now);
    if (!Rtc::setWakeAlarm(clock, wake, now))
        return EXIT_FAILURE;
    std::cout << "the device turns on at " << wake << " for an alarm at " << *moment << '\n';
    return EXIT_SUCCESS;
}
