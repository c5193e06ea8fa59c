// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/stylablewidget.h"

#include <QList>

namespace Touch {
class Button;
}

/** Other lengths of a snooze than the alarm's own, a button for each; pressing one snoozes. */
class SnoozeChoice : public Touch::StylableWidget
{
    Q_OBJECT

public:
    explicit SnoozeChoice(QGraphicsItem *parent = nullptr);
    ~SnoozeChoice() override;

    /** Puts the texts into the user's language and digits. */
    void refresh();

signals:
    void chosen(int seconds);

private:
    QList<Touch::Button *> m_buttons;
};
