// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/stylablewidget.h"

#include <QList>

namespace Touch {
class Button;
}

/** Lengths of a snooze other than the alarm's own, a button for each; pressing one snoozes. */
class SnoozeChoice : public Touch::StylableWidget
{
    Q_OBJECT

public:
    explicit SnoozeChoice(QGraphicsItem *parent = nullptr);
    ~SnoozeChoice() override;

    /** Of an alarm that snoozes so long; with the texts in the user's language and digits. */
    void refresh(int ownSeconds);
    /** Smaller letters, so that all lengths are written in one size. */
    void setCompact(bool isCompact);

signals:
    void chosen(int seconds);

private:
    void evenTexts();

    QList<Touch::Button *> m_buttons;
};
