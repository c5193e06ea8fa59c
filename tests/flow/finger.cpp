// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/flow/finger.h"

#include "app/references.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/scenewindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QGraphicsObject>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <functional>

namespace Flow {

namespace {

void xdotool(const QStringList &arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        qCritical() << "xdotool" << arguments << "failed";
}

QStringList position(const QPoint &point)
{
    return {QString::number(point.x()), QString::number(point.y())};
}

QImage screenPicture()
{
    return applicationWindow->screen()->grabWindow(0).toImage();
}

/** The screen without the clock face, which never rests. */
QImage restingPicture()
{
    const QImage picture = screenPicture();
    const QGraphicsObject *button = itemNamed("newAlarmButton");
    const int top = button ? pointOf(button, 0, 0).y() : 0;
    return picture.copy(0, top, picture.width(), picture.height() - top);
}

/** Waits until everything is painted and no movement goes on. */
bool waitForRest()
{
    constexpr int restMilliseconds = 250;
    QImage last;
    QElapsedTimer unchanged;
    return QTest::qWaitFor([&] {
        const QImage now = restingPicture();
        if (now != last)
            unchanged.start();
        last = now;
        return unchanged.hasExpired(restMilliseconds);
    });
}

QGraphicsObject *topmostItem(const std::function<bool(const QGraphicsObject *)> &isWanted)
{
    const auto items = frontWindow()->scene()->items();
    for (QGraphicsItem *item : items) {
        QGraphicsObject *object = item->toGraphicsObject();
        if (object && object->isVisible() && isWanted(object))
            return object;
    }
    return nullptr;
}

QStringList moveTo(const QPoint &point)
{
    return QStringList("mousemove") + position(point);
}

} // namespace

void tap(const QPoint &point)
{
    xdotool(moveTo(point) + QStringList{"click", "1"});
}

void doubleTap(const QPoint &point)
{
    xdotool(moveTo(point) + QStringList{"click", "--repeat", "2", "--delay", "80", "1"});
}

void hold(const QPoint &point)
{
    xdotool(moveTo(point) + QStringList{"mousedown", "1"});
}

void lift()
{
    xdotool({"mouseup", "1"});
}

void drag(const QPoint &from, const QPoint &to)
{
    constexpr int steps = 8;
    QStringList gesture = moveTo(from) + QStringList{"mousedown", "1"};
    for (int step = 1; step <= steps; ++step)
        gesture += moveTo(from + (to - from) * step / steps);
    xdotool(gesture + QStringList{"mouseup", "1"});
}

void type(const QString &text)
{
    xdotool({"type", "--delay", "5", text});
}

void press(const QString &key)
{
    xdotool({"key", key});
}

Touch::Window *frontWindow()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<Touch::ApplicationWindow *>(widget);
        if (window && window->isVisible() && window->chainedTo())
            return window;
    }
    return applicationWindow;
}

QPoint pointOf(const QGraphicsObject *item, double across, double down)
{
    const QRectF rect = item->boundingRect();
    const QPointF inItem = rect.topLeft() + QPointF(rect.width() * across, rect.height() * down);
    const Touch::Window *window = frontWindow();
    return window->viewport()->mapToGlobal(window->mapFromScene(item->mapToScene(inItem)));
}

QGraphicsObject *itemNamed(const QString &objectName)
{
    return topmostItem([&](const QGraphicsObject *object) { return object->objectName() == objectName; });
}

QGraphicsObject *itemSaying(const QString &start)
{
    return topmostItem([&](const QGraphicsObject *object) {
        const auto *widget = qobject_cast<const Touch::Widget *>(object);
        return widget && widget->accessibleName().startsWith(start) && !qobject_cast<const Touch::Label *>(object);
    });
}

QStringList visibleTexts()
{
    QStringList texts;
    const auto items = frontWindow()->scene()->items();
    for (QGraphicsItem *item : items) {
        const auto *label = qobject_cast<Touch::Label *>(item->toGraphicsObject());
        if (label && label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

bool isMoving()
{
    const auto sceneWindows = frontWindow()->sceneWindows();
    for (const Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (sceneWindow->isInTransition())
            return true;
    }
    return false;
}

bool keepScreenshot(const QString &name)
{
    const QDir folder(CLOCK_SCREENSHOT_DIR);
    return waitForRest() && folder.mkpath(".") && screenPicture().save(folder.filePath(name + ".png"));
}

} // namespace Flow
