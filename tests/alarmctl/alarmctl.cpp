// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmctl/alarmctl.h"
#include "tests/support/places.h"

#include <QProcess>

QString alarmctlPath()
{
    return Places::program("alarmctl");
}

Run alarmctl(const QStringList &arguments, const QStringList &environment)
{
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + environment);
    process.start(alarmctlPath(), arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

Run alarmctl(const QByteArray &arguments)
{
    return alarmctl(QString::fromUtf8(arguments).split(' ', Qt::SkipEmptyParts));
}
