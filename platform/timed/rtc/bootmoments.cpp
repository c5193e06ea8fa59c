// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rtc/bootmoments.h"

#include <array>
#include <charconv>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace Rtc {

namespace {

// A moment further away is a mistake, not an alarm.
constexpr long long FarthestAhead = 366LL * 86400;

class Descriptor
{
public:
    explicit Descriptor(const std::filesystem::path &path)
        // Neither follows a link nor waits for the other end of a pipe.
        : m_number(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC))
    { }
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    int m_number;
};

/** Nothing but digits, and at most one line end. */
std::optional<long long> readNumber(std::string_view text)
{
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    long long number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < 0)
        return std::nullopt;
    return number;
}

std::optional<long long> readMoment(const std::filesystem::path &path)
{
    const Descriptor file(path);
    struct stat status = {};
    if (file.number() < 0 || fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)
        || path.filename() != std::to_string(status.st_uid))
        return std::nullopt;
    std::array<char, 32> buffer = {};
    const auto length = read(file.number(), buffer.data(), buffer.size());
    if (length <= 0)
        return std::nullopt;
    return readNumber({buffer.data(), std::size_t(length)});
}

} // namespace

std::optional<long long> nextBootMoment(const std::filesystem::path &folder, long long now)
{
    std::optional<long long> next;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(folder, error)) {
        const auto moment = readMoment(entry.path());
        if (!moment || *moment > now + FarthestAhead)
            std::cerr << "ignoring " << entry.path() << ", which tells no sensible moment\n";
        else if (*moment > now && (!next || *moment < *next))
            next = moment;
    }
    if (error)
        std::cerr << "cannot read " << folder << ": " << error.message() << '\n';
    return next;
}

} // namespace Rtc
