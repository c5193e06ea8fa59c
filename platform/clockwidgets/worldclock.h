// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/clockwidgets/clockticker.h"
#include "platform/toolkit/pressable.h"

#include <memory>

class ClockFace;

/// The time of day, analogue or digital, with the date and the zone's name under it, or beside it where that leaves the
/// face too little height, in the user's locale. A tap shows the other face, with which every clock then starts: it is
/// kept in the settings of the clock widgets. It ticks only while it can be seen: every second with the seconds hand,
/// every minute without.
class WorldClock : public Touch::Pressable
{
    Q_OBJECT
    Q_PROPERTY(Face face READ face WRITE setFace NOTIFY faceChanged)

public:
    enum class Face { Analogue, Digital };
    Q_ENUM(Face)

    explicit WorldClock(QGraphicsItem *parent = nullptr);
    /// With another clock than that of the system.
    explicit WorldClock(std::unique_ptr<ClockTicker> ticker, QGraphicsItem *parent = nullptr);
    ~WorldClock() override;

    Face face() const { return m_face; }
    void setFace(Face face);
    /// What is shown now.
    QDateTime shownTime() const { return m_now; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Button; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

Q_SIGNALS:
    void faceChanged(WorldClock::Face face);

protected:
    QString shownText() const override;
    void styleChanged() override;
    void enterDisplay() override;
    void exitDisplay() override;
    void tapped() override;

private:
    struct Line;

    void tick();
    void startTicking();
    void applyStyle();
    void localeChanged();
    QString dateText() const;
    QString zoneText() const;
    void paintBelowEachOther(QPainter &painter, const QRectF &area, const Line &date, const Line &zone) const;
    void paintBesideEachOther(QPainter &painter, const QRectF &area, const Line &date, const Line &zone) const;
    void paintFace(QPainter &painter, const QRectF &rect) const;
    void paintDigits(QPainter &painter, const QRectF &rect) const;

    std::unique_ptr<ClockTicker> m_ticker;
    std::unique_ptr<ClockFace> m_clockFace;
    Face m_face = Face::Analogue;
    QDateTime m_now;
};
