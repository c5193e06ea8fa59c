// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "touch.h"

#include "platform/toolkit/widget.h"
#include "platform/toolkit/window.h"

#include <QTest>

using namespace Touch;

namespace {

QPoint inViewport(const Window &window, const Widget *widget, const QPointF &at)
{
    return window.mapFromScene(widget->mapToScene(at));
}

} // namespace

void Finger::press(Window &window, const Widget *widget, const QPointF &at)
{
    QTest::mousePress(window.viewport(), Qt::LeftButton, {}, inViewport(window, widget, at));
}

void Finger::moveTo(Window &window, const Widget *widget, const QPointF &at)
{
    QMouseEvent event(QEvent::MouseMove, inViewport(window, widget, at),
                      window.viewport()->mapToGlobal(inViewport(window, widget, at)), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.viewport(), &event);
}

void Finger::release(Window &window, const Widget *widget, const QPointF &at)
{
    QTest::mouseRelease(window.viewport(), Qt::LeftButton, {}, inViewport(window, widget, at));
}

void Finger::send(Window &window, QEvent::Type type, const QPoint &place, quint64 time)
{
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, window.viewport()->mapToGlobal(place), Qt::LeftButton,
                      isUp ? Qt::NoButton : Qt::LeftButton, {});
    event.setTimestamp(time);
    QCoreApplication::sendEvent(window.viewport(), &event);
}

void Finger::tap(Window &window, const Widget *widget)
{
    press(window, widget, widget->rect().center());
    release(window, widget, widget->rect().center());
}

void Finger::drag(Window &window, const Widget *widget, const QPointF &from, const QPointF &to)
{
    constexpr int steps = 10;
    press(window, widget, from);
    for (int i = 1; i <= steps; ++i)
        moveTo(window, widget, from + (to - from) * i / steps);
    release(window, widget, to);
}
