// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rules/nextmoment.h"
#include "platform/timed/rules/zone.h"

#include <iostream>
#include <string>

using namespace Astel::Timed::Rules;

/** Reads lines "zone hour minute fill after" and answers each with the next moment of that daily time. */
int main()
{
    std::string id;
    unsigned hour = 0;
    unsigned minute = 0;
    bool fill = false;
    qint64 after = 0;
    std::optional<Zone> zone;
    while (std::cin >> id >> hour >> minute >> fill >> after) {
        if (!zone || zone->id() != QByteArray::fromStdString(id))
            zone = Zone::create(QByteArray::fromStdString(id));
        const Rule daily{1u << hour, Q_UINT64_C(1) << minute, 0x7f, 0xfffffffeu, 0x1ffeu, fill};
        const auto moment = zone ? nextMoment(daily, *zone, after) : std::nullopt;
        std::cout << moment.value_or(-1) << '\n';
    }
    return 0;
}
