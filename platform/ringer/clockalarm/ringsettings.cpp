// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringsettings.h"

#include <QSettings>
#include <QStandardPaths>

StopGesture chosenStopGesture()
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QSettings file(folder + QStringLiteral("/ringer.conf"), QSettings::IniFormat);
    return file.value(QStringLiteral("Stop/gesture")).toString() == QLatin1String("hold") ? StopGesture::Hold
                                                                                          : StopGesture::Slide;
}
