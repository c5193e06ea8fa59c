// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <QObject>
#include <QRectF>

namespace Touch {

class Window;

/** Where the software keyboard lies in its window; empty while it is hidden. A test may replace it; null restores it. */
using KeyboardArea = std::function<QRectF()>;
void setKeyboardArea(const KeyboardArea &area);

/**
 * Moves what a window shows up as far as needed, so that the software keyboard never covers what is edited, and back
 * when the keyboard goes. Owned by the window.
 */
class KeyboardRoom : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardRoom(Window *window);
    ~KeyboardRoom() override;

    void update();

private:
    qreal wantedShift() const;

    Window *m_window;
};

} // namespace Touch
