// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/pulseserver.h"

#include <QStringList>

/** The names of the sinks in their order, with a space between. */
inline QString namesOf(const QList<Sound::PulseSink> &sinks)
{
    QStringList names;
    for (const auto &each : sinks)
        names += each.id;
    return names.join(' ');
}
