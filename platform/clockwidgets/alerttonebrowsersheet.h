// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/probe.h"
#include "platform/toolkit/sheet.h"

#include <memory>

namespace Touch {
class Banner;
class List;
class PannableViewport;
} // namespace Touch

class AlertTone;
class ToneFileSheet;
class ToneJudge;
class ToneModel;
class TonePreview;

/// Lets the user choose a tone: the system's ones, no sound, music of one's own, or any sound file. A tap chooses a tone
/// and plays it, as loud as an alarm gets; another tap on it ends that. A file that would not be heard is not chosen, and
/// a notice says so. Done puts the choice into the alert tone, Cancel leaves that as it was. The alert tone stays its
/// maker's and must outlive the sheet. GUI thread only.
class AlertToneBrowserSheet : public Touch::Sheet
{
    Q_OBJECT

public:
    explicit AlertToneBrowserSheet(AlertTone *tone, QGraphicsItem *parent = nullptr);
    ~AlertToneBrowserSheet() override;

    /// The tone that Done would take.
    QString selectedFile() const;
    /// The tone that is being played; empty when it is silent.
    QString playedFile() const;

protected:
    void aboutToAppear() override;
    void aboutToLeave() override;
    void exitDisplay() override;
    QString shownText() const override;

private:
    void makeHeader();
    void makeList();
    void lookForFile();
    void choose(const QString &path);
    void hear(const QString &path, Sound::Probe::Verdict verdict);
    void select(const QString &path);
    void refuse(const QString &path, Sound::Probe::Verdict verdict);
    void showSelected();
    void take();

    AlertTone *const m_tone;
    ToneModel *m_model;
    TonePreview *m_preview;
    ToneJudge *m_judge;
    std::unique_ptr<ToneFileSheet> m_files; ///< made when it is first needed, as is the notice
    std::unique_ptr<Touch::Banner> m_notice;
    Touch::List *m_list = nullptr;
    Touch::PannableViewport *m_viewport = nullptr;
};
