// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

namespace Clock {
class QmAlarmEvent;
}

// How the model writes an alarm: all in text, numbers in plain decimal.

QString cookieText(quint32 cookie);
QString statusText(bool isEnabled);
/** All columns of the alarm's row, in their order. */
QStringList rowTexts(const Clock::QmAlarmEvent &alarm);
