// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rtc/wakealarm.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <string>
#include <unistd.h>

namespace Rtc {

namespace {

// By less, two clocks that both keep the time differ as well.
constexpr long long SmallestOffset = 60;

long long offset(const std::filesystem::path &clock, long long now)
{
    long long own = 0;
    if (!(std::ifstream(clock / "since_epoch") >> own))
        return 0;
    return std::llabs(own - now) < SmallestOffset ? 0 : own - now;
}

bool writeValue(const std::filesystem::path &path, long long value)
{
    const std::string text = std::to_string(value) + '\n';
    // The file is the kernel's: it is there, or there is no alarm to set.
    const int descriptor = open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    const bool written = descriptor >= 0 && write(descriptor, text.data(), text.size()) == ssize_t(text.size());
    if (!written)
        std::cerr << "cannot write " << value << " to " << path << ": " << std::strerror(errno) << '\n';
    if (descriptor >= 0)
        close(descriptor);
    return written;
}

} // namespace

long long wakeTime(long long moment, long long now)
{
    return std::max(moment - Lead, now + Shortest);
}

bool setWakeAlarm(const std::filesystem::path &clock, long long wake, long long now)
{
    const std::filesystem::path alarm = clock / "wakealarm";
    // The kernel takes no new alarm while one is set.
    return writeValue(alarm, 0) && writeValue(alarm, wake + offset(clock, now));
}

} // namespace Rtc
