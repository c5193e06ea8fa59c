// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/alarmdaemon.h"
#include "platform/ringer/toneplayer.h"

#include <QStringList>

/** Writes down what it is told; the test answers for it. */
class FakeDaemon : public Ringer::AlarmDaemon
{
    Q_OBJECT

public:
    QStringList calls;

    void rings(quint32 cookie) override { calls += QStringLiteral("rings %1").arg(cookie); }
    void sounds(quint32 cookie, const QString &tone) override
    {
        calls += QStringLiteral("sounds %1 %2").arg(cookie).arg(tone);
    }
    void impaired(quint32 cookie, const QString &trouble) override
    {
        calls += QStringLiteral("impaired %1 %2").arg(cookie).arg(trouble);
    }
    void snooze(quint32 cookie, quint32 seconds, const QString &by) override
    {
        calls += QStringLiteral("snooze %1 %2 %3").arg(cookie).arg(seconds).arg(by);
    }
    void dismiss(quint32 cookie, const QString &by) override
    {
        calls += QStringLiteral("dismiss %1 %2").arg(cookie).arg(by);
    }
};

/** Knows what it was asked to play; the test says whether it is heard. */
class FakePlayer : public Ringer::TonePlayer
{
    Q_OBJECT

public:
    QString tone; ///< empty when silent
    int plays = 0;
    int round = 0;

    void play(const QString &newTone, int newRound) override
    {
        tone = newTone;
        round = newRound;
        ++plays;
    }
    void stop() override { tone.clear(); }

    void becomeAudible() { emit audible(); }
    void fail() { emit failed(QStringLiteral("test")); }
};
