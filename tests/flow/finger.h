// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPoint>
#include <QString>

class QGraphicsObject;

namespace Touch {
class Window;
}

/** What a user does and sees on the screen of the running program. */
namespace Flow {

// Real input, sent by the X server to whatever lies there.
void tap(const QPoint &position);
void doubleTap(const QPoint &position);
/** Puts the finger down until it is lifted. */
void hold(const QPoint &position);
void lift();
void drag(const QPoint &from, const QPoint &to);
void type(const QString &text);
void press(const QString &key);

/** The window in front: one that is chained to the application's, or that itself. */
Touch::Window *frontWindow();
/** Where on the screen a point of an item of the front window is, given in parts of its width and height. */
QPoint pointOf(const QGraphicsObject *item, double across = 0.5, double down = 0.5);
/** The topmost item of this object name that is visible and stands still, or null. */
QGraphicsObject *itemNamed(const QString &objectName);
/** The topmost visible one that is read out by a name that starts so, or null. */
QGraphicsObject *itemSaying(const QString &start);
/** The texts of all visible labels. */
QStringList visibleTexts();
/** Whether a page, sheet or banner is just coming or going. */
bool isMoving();

/** Waits until the screen rests and keeps what it shows under this name in the build folder. */
[[nodiscard]] bool keepScreenshot(const QString &name);

} // namespace Flow
