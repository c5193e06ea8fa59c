// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QObject>

namespace Sound {
class TonePipeline;
}

/// Lets the user hear one tone at a time, as loud as an alarm gets. Owned by the sheet.
class TonePreview : public QObject
{
    Q_OBJECT

public:
    explicit TonePreview(QObject *parent = nullptr);
    ~TonePreview() override;

    /// Ends what is played and plays this in a loop; what cannot be played ends in stopped().
    void play(const QString &path);
    void stop();
    bool isPlaying() const { return m_pipeline != nullptr; }

Q_SIGNALS:
    void stopped();

private:
    std::unique_ptr<Sound::TonePipeline> m_pipeline; ///< null when silent
};
