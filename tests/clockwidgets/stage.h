// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/window.h"

#include <memory>
#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QMouseEvent>
#include <QTest>

/// A real window with one widget in it, and a finger.
class Stage
{
public:
    explicit Stage(QGraphicsWidget *widget, const QRectF &place)
        : m_widget(widget)
    {
        window.resize(480, 480);
        window.setSceneRect(0, 0, 480, 480);
        window.scene()->addItem(widget);
        widget->setGeometry(place);
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    void press(const QPointF &point) { send(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton, 0); }
    /// Moves to a point in so many milliseconds of the finger's own time.
    void move(const QPointF &point, int milliseconds = 100)
    {
        send(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, milliseconds);
    }
    void release(const QPointF &point) { send(QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton, 10); }
    void tap(const QPointF &point)
    {
        press(point);
        release(point);
    }
    /// The second tap of a quick pair, as the window system tells it.
    void doubleTap(const QPointF &point)
    {
        tap(point);
        send(QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton, 10);
        release(point);
    }
    void key(int key)
    {
        m_widget->setFocus(Qt::TabFocusReason);
        QTest::keyClick(&window, Qt::Key(key));
    }

    Touch::Window window;

private:
    void send(QEvent::Type type, const QPointF &point, Qt::MouseButton button, Qt::MouseButtons buttons,
              int milliseconds)
    {
        const QPointF inView = window.mapFromScene(m_widget->mapToScene(point));
        QMouseEvent event(type, inView, window.viewport()->mapToGlobal(inView), button, buttons, Qt::NoModifier);
        m_time += quint64(milliseconds);
        event.setTimestamp(m_time);
        QApplication::sendEvent(window.viewport(), &event);
    }

    QGraphicsWidget *m_widget;
    quint64 m_time = 1000;
};
