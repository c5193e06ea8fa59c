// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/clockwidgets/timepicker.h"
#include "tests/clockwidgets/stage.h"

#include <QLineF>
#include <QSignalSpy>
#include <QTime>
#include <QtMath>
#include <QWheelEvent>

inline const QPointF middle(200, 200);

/// A picker on a stage.
struct PickerScene
{
    explicit PickerScene(int hours, int minutes)
        : picker(new TimePicker(hours, minutes))
        , stage(picker, {40, 40, 400, 400})
        , changes(picker, &TimePicker::timeChanged)
    { }

    QTime time() const { return {picker->hours(), picker->minutes()}; }
    /// The point of a ring at an angle from the top.
    QPointF onRing(const QPointF &handle, qreal degrees) const
    {
        const qreal radius = QLineF(middle, handle).length();
        const qreal radians = qDegreesToRadians(degrees);
        return middle + QPointF(radius * qSin(radians), -radius * qCos(radians));
    }
    QPointF onHours(qreal degrees) const { return onRing(picker->hourHandle(), degrees); }
    QPointF onMinutes(qreal degrees) const { return onRing(picker->minuteHandle(), degrees); }
    void wheel(const QPointF &point, int delta)
    {
        const QPointF inView = stage.window.mapFromScene(picker->mapToScene(point));
        QWheelEvent event(inView, stage.window.viewport()->mapToGlobal(inView), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(stage.window.viewport(), &event);
    }

    TimePicker *picker;
    Stage stage;
    QSignalSpy changes;
};
