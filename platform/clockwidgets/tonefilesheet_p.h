// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/sheet.h"

namespace Touch {
class Label;
class List;
class PannableViewport;
} // namespace Touch

class ToneFileItem;
class ToneFolderModel;

/// Lets the user look through folders for a sound file. It tells which one was tapped and stays: whoever made it judges
/// the file and takes the sheet away. Escape leads one folder up, and out at the top. The next time it starts where it
/// was left. GUI thread only.
class ToneFileSheet : public Touch::Sheet
{
    Q_OBJECT

public:
    explicit ToneFileSheet(QGraphicsItem *parent = nullptr);
    ~ToneFileSheet() override;

    /// The folder that is shown; empty above all folders.
    QString folder() const;

Q_SIGNALS:
    void tapped(const QString &path);

protected:
    void aboutToAppear() override;
    void stepBack() override;
    QString shownText() const override;

private:
    void makeHeader();
    void makeContent();
    void follow(const ToneFileItem &item);
    void showFolder();

    ToneFolderModel *m_model;
    Touch::Label *m_title = nullptr;
    Touch::PannableViewport *m_viewport = nullptr;
};
