// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QObject>

/** A plug-in that takes the ringer down with it. */
class CrashingPlugin : public QObject, public Ringer::RingPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID RingPlugin_iid)
    Q_INTERFACES(Ringer::RingPlugin)

public:
    void setAnswers(Ringer::Answers *) override { }
    void show(const Ringer::Alarm &alarm) override;
    void hide(quint32) override { }
};
