// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/probe.h"

#include <QObject>

/// Finds out in another thread how a file would do as a tone. Only the last question is answered. Owned by the sheet.
class ToneJudge : public QObject
{
    Q_OBJECT

public:
    explicit ToneJudge(QObject *parent = nullptr);
    ~ToneJudge() override;

    void ask(const QString &path);
    /// Leaves the last question unanswered.
    void forget() { m_path.clear(); }

Q_SIGNALS:
    void judged(const QString &path, Sound::Probe::Verdict verdict);

private:
    void answer(const QString &path, Sound::Probe::Verdict verdict);

    QString m_path; ///< that is being judged; empty when there is none
};
