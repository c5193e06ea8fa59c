// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>

namespace Touch {

class Widget;
class Window;

/**
 * Opens the object menu of what a finger rests on. The press is taken from the control, which then is not clicked; a
 * finger that moves opens nothing. Owned by the window that tells it what the finger does.
 */
class LongPress : public QObject
{
    Q_OBJECT

public:
    explicit LongPress(Window *window);
    ~LongPress() override;

    void press(const QPoint &place);
    void moveTo(const QPoint &place);
    void release();
    /** Opens the menu of what lies at a place at once; false if that has none. */
    bool openAt(const QPoint &place);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Window *m_window;
    QBasicTimer m_timer;
    QPoint m_place;
    QPointer<Widget> m_owner;
};

} // namespace Touch
