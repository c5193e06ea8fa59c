// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QStringList>
#include <QTime>

class QPainter;

/// Paints an analogue clock. The dial is kept as a picture; only the hands are painted every time.
class ClockFace
{
public:
    struct Look
    {
        QColor face;
        QColor rim;
        QColor ticks;
        QColor hands;
        QColor accent;
        QFont numerals;
        QColor numeralColor;
    };

    void setLook(const Look &look);
    /// The texts at 12, 3, 6 and 9 o'clock.
    void setNumerals(const QStringList &numerals);

    void paint(QPainter &painter, const QPointF &centre, qreal diameter, const QTime &time, bool withSeconds);

private:
    QPixmap makeDial(qreal diameter, qreal devicePixelRatio) const;
    void paintTicks(QPainter &painter, qreal radius) const;
    void paintNumerals(QPainter &painter, qreal radius) const;
    void paintHand(QPainter &painter, qreal angle, qreal tail, qreal length, qreal width, const QColor &color) const;

    Look m_look;
    QStringList m_numerals;
    QPixmap m_dial;
    qreal m_dialDiameter = 0;
};
