// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/sheet.h"

namespace Touch {
class List;
class PannableViewport;
} // namespace Touch

class AlertTone;
class ToneModel;
class TonePreview;

/// Lets the user choose a tone: the system's ones, no sound, or music of one's own. A tap chooses a tone and plays it, as
/// loud as an alarm gets; another tap on it ends that. Done puts the choice into the alert tone, Cancel leaves that as it
/// was. The alert tone stays its maker's and must outlive the sheet. GUI thread only.
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
    void choose(const QString &path);
    void showSelected();
    void take();

    AlertTone *const m_tone;
    ToneModel *m_model;
    TonePreview *m_preview;
    Touch::List *m_list = nullptr;
    Touch::PannableViewport *m_viewport = nullptr;
};
