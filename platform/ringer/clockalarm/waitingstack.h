// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"
#include "platform/toolkit/stylablewidget.h"

#include <QList>

namespace Touch {
class Button;
class Label;
} // namespace Touch

/** The alarms that ring behind the one in front: how many, and each with its time and title. Hidden without any. */
class WaitingStack : public Touch::StylableWidget
{
    Q_OBJECT

public:
    explicit WaitingStack(QGraphicsItem *parent = nullptr);
    ~WaitingStack() override;

    void setAlarms(const QList<Ringer::Alarm> &alarms);
    /** How many are shown by name; the number above them counts all. */
    void setRoom(int cards);

signals:
    void chosen(quint32 cookie);

private:
    void refresh();

    QList<Ringer::Alarm> m_alarms;
    int m_room = 1;
    Touch::Label *m_count;
    QList<Touch::Button *> m_cards;
};
