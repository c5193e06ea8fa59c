// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/plugins/recordingplugin.h"

void RecordingPlugin::show(const Ringer::Alarm &alarm)
{
    hide(alarm.cookie);
    m_alarms.append(QVariant(QVariantList{alarm.cookie, alarm.title, alarm.due, alarm.tone, alarm.snoozeSeconds}));
    m_answers->shown(alarm.cookie);
}

void RecordingPlugin::hide(quint32 cookie)
{
    m_alarms.removeIf([cookie](const QVariant &alarm) { return alarm.toList().first().toUInt() == cookie; });
}
