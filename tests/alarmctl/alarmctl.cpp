// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmctl/alarmctl.h"
#include "tests/support/places.h"

QString alarmctlPath()
{
    return Places::program("alarmctl");
}

Run alarmctl(const QStringList &arguments, const QStringList &environment)
{
    return Support::run("alarmctl", arguments, environment);
}

Run alarmctl(const QByteArray &arguments)
{
    return alarmctl(QString::fromUtf8(arguments).split(' ', Qt::SkipEmptyParts));
}
