// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QGraphicsView>
#include <QGraphicsWidget>
#include <QStringList>

/** The clock's own ring screen, loaded as the ringer does, and a finger on it. */
namespace RingScreen {

/** Writes down what the screen tells the ringer. */
class RecordingAnswers : public Ringer::Answers
{
public:
    QStringList calls;

    void shown(quint32 cookie) override { calls += QStringLiteral("shown %1").arg(cookie); }
    void snooze(quint32 cookie, int seconds) override
    {
        calls += QStringLiteral("snooze %1 %2").arg(cookie).arg(seconds);
    }
    void dismiss(quint32 cookie) override { calls += QStringLiteral("dismiss %1").arg(cookie); }
};

/** Null, with a reason, where it does not load. */
Ringer::RingPlugin *load(QString *reason);

/** An alarm for tea, due now. */
Ringer::Alarm teaTime(quint32 cookie, int snoozeSeconds = 600);

QGraphicsView *window(); ///< null when nothing rings
/** Past the moment in which a screen that has just come up takes no answer. */
[[nodiscard]] bool waitForAnswers();
QGraphicsWidget *item(const QString &name);
QPoint placeOf(const QString &name); ///< its centre, in the window
void click(const QString &name);
/** Pulls the knob so much of its way, 0 to 1, and lets go. */
void slideToStop(double part = 1);

} // namespace RingScreen
