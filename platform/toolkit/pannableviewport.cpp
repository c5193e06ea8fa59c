// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/pannableviewport.h"

#include "platform/toolkit/contentlayout_p.h"
#include "platform/toolkit/moveclock_p.h"
#include "platform/toolkit/positionmark_p.h"

#include <cmath>
#include <QFocusEvent>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QTimerEvent>
#include <utility>

namespace Touch {

namespace {

constexpr qreal panThreshold = 10;
constexpr int frameTime = 16;
constexpr qreal wheelStep = 72; ///< pixels for one notch
constexpr qreal wheelNotch = 120;
constexpr qreal staleMove = 0.08; ///< seconds after which a resting finger no longer flicks
constexpr qreal smoothing = 0.6;

} // namespace

PannableViewport::PannableViewport(QGraphicsItem *parent)
    : Widget(parent)
    , m_layout(new ContentLayout(this, [this] { arrange(); }))
{
    setFlag(ItemClipsChildrenToShape);
    setFiltersChildEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PannableViewport::~PannableViewport() = default;

void PannableViewport::setWidget(QGraphicsWidget *widget)
{
    if (m_widget == widget)
        return;
    delete m_widget;
    m_widget = widget;
    if (!widget)
        return;
    m_layout->setContent(widget);
}

void PannableViewport::setPanDirection(Qt::Orientations directions)
{
    if (m_directions == directions)
        return;
    m_directions = directions;
    if (m_isPanning)
        ungrabMouse();
    stopMoving();
    if (!pans(Qt::Horizontal))
        m_x.jumpTo(0);
    if (!pans(Qt::Vertical))
        m_y.jumpTo(0);
    arrange();
}

void PannableViewport::setFitsWidget(bool fits)
{
    if (m_fitsWidget == fits)
        return;
    m_fitsWidget = fits;
    arrange();
}

QPointF PannableViewport::position() const
{
    return {m_x.position(), m_y.position()};
}

void PannableViewport::setPosition(const QPointF &position)
{
    stopMoving();
    if (pans(Qt::Horizontal))
        m_x.jumpTo(position.x());
    if (pans(Qt::Vertical))
        m_y.jumpTo(position.y());
    moveWidget();
}

QPointF PannableViewport::range() const
{
    return {m_x.maximum(), m_y.maximum()};
}

void PannableViewport::ensureVisible(const QRectF &rect)
{
    QPointF wanted = position();
    const auto shift = [](qreal at, qreal length, qreal from, qreal to) {
        return from < at ? from : to > at + length ? to - length : at;
    };
    const qreal left = isMirrored() && m_widget ? m_widget->size().width() - rect.right() : rect.left();
    wanted.setX(shift(wanted.x(), size().width(), left, left + rect.width()));
    wanted.setY(shift(wanted.y(), size().height(), rect.top(), rect.bottom()));
    if (wanted != position())
        setPosition(wanted);
}

QSizeF PannableViewport::wantedSize() const
{
    const Qt::SizeHint hint = m_fitsWidget ? Qt::MinimumSize : Qt::PreferredSize;
    QSizeF wanted = size();
    if (pans(Qt::Horizontal))
        wanted.setWidth(qMax(wanted.width(), m_widget->effectiveSizeHint(hint).width()));
    const QSizeF constraint(wanted.width(), -1);
    if (pans(Qt::Vertical))
        wanted.setHeight(qMax(wanted.height(), m_widget->effectiveSizeHint(hint, constraint).height()));
    return wanted;
}

void PannableViewport::arrange()
{
    if (!m_widget)
        return;
    const QSizeF wanted = wantedSize();
    m_widget->resize(wanted);
    m_x.setMaximum(pans(Qt::Horizontal) ? wanted.width() - size().width() : 0);
    m_y.setMaximum(pans(Qt::Vertical) ? wanted.height() - size().height() : 0);
    if (!isMoving()) {
        m_x.jumpTo(m_x.position());
        m_y.jumpTo(m_y.position());
    }
    moveWidget();
}

void PannableViewport::moveWidget()
{
    if (!m_widget)
        return;
    // Whole pixels keep the text sharp.
    const qreal x = std::round(m_x.position());
    m_widget->setPos(isMirrored() ? size().width() - m_widget->size().width() + x : -x, -std::round(m_y.position()));
    if (std::exchange(m_shownPosition, position()) != position() && isMoving())
        showPosition();
}

void PannableViewport::showPosition()
{
    const auto follow = [this](PositionMark *&mark, Qt::Orientation direction) {
        if (!pans(direction))
            return;
        if (!mark)
            mark = new PositionMark(this, direction);
        mark->follow();
    };
    follow(m_xMark, Qt::Horizontal);
    follow(m_yMark, Qt::Vertical);
}

QPointF PannableViewport::fingerOf(const QGraphicsSceneMouseEvent *event) const
{
    const QPointF at = mapFromScene(event->scenePos());
    return {isMirrored() ? size().width() - at.x() : at.x(), at.y()};
}

bool PannableViewport::press(const QGraphicsSceneMouseEvent *event)
{
    const bool wasMoving = m_timer.isActive();
    stopMoving();
    m_isPressed = event->button() == Qt::LeftButton;
    m_pressPos = fingerOf(event);
    return wasMoving;
}

bool PannableViewport::turnsIntoPanning(const QGraphicsSceneMouseEvent *event) const
{
    if (!m_isPressed || m_isPanning)
        return false;
    const QPointF way = fingerOf(event) - m_pressPos;
    const bool isSideways = std::abs(way.x()) > std::abs(way.y());
    if (m_fitsWidget && (isSideways ? m_x : m_y).maximum() == 0)
        return false;
    return pans(isSideways ? Qt::Horizontal : Qt::Vertical)
        && qMax(std::abs(way.x()), std::abs(way.y())) >= panThreshold;
}

void PannableViewport::startPanning(const QGraphicsSceneMouseEvent *event)
{
    m_isPanning = true;
    m_lastPos = fingerOf(event);
    m_grip = m_lastPos + QPointF(m_x.dragPosition(), m_y.dragPosition());
    m_velocity = {};
    m_movedAt = moveTime();
    // Takes the mouse from the control that was pressed, which cancels its press.
    grabMouse();
}

void PannableViewport::pan(const QGraphicsSceneMouseEvent *event)
{
    const QPointF at = fingerOf(event);
    const qint64 now = moveTime();
    const qreal seconds = qMax(0.001, (now - std::exchange(m_movedAt, now)) / 1000.0);
    m_velocity = m_velocity * (1 - smoothing) + (m_lastPos - at) / seconds * smoothing;
    m_lastPos = at;
    if (pans(Qt::Horizontal))
        m_x.dragTo(m_grip.x() - at.x());
    if (pans(Qt::Vertical))
        m_y.dragTo(m_grip.y() - at.y());
    moveWidget();
}

void PannableViewport::release()
{
    m_isPressed = false;
    if (!m_isPanning)
        return;
    m_isPanning = false;
    const bool isStale = (moveTime() - m_movedAt) / 1000.0 > staleMove;
    m_x.flick(pans(Qt::Horizontal) && !isStale ? m_velocity.x() : 0);
    m_y.flick(pans(Qt::Vertical) && !isStale ? m_velocity.y() : 0);
    startMoving();
}

void PannableViewport::startMoving()
{
    m_frameClock.start();
    m_timer.start(frameTime, Qt::PreciseTimer, this);
}

void PannableViewport::stopMoving()
{
    m_timer.stop();
    m_x.stop();
    m_y.stop();
}

bool PannableViewport::sceneEventFilter(QGraphicsItem *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseDoubleClick:
        // Stopping it is all that such a press does.
        return press(static_cast<QGraphicsSceneMouseEvent *>(event));
    case QEvent::GraphicsSceneMouseMove: {
        auto *mouse = static_cast<QGraphicsSceneMouseEvent *>(event);
        if (!turnsIntoPanning(mouse))
            break;
        startPanning(mouse);
        return true;
    }
    case QEvent::GraphicsSceneMouseRelease:
        m_isPressed = false;
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (m_widget && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason))
            ensureVisible(m_widget->mapRectFromItem(watched, watched->boundingRect()));
        break;
    }
    default:
        break;
    }
    return Widget::sceneEventFilter(watched, event);
}

void PannableViewport::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    press(event);
    event->accept();
}

void PannableViewport::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_isPanning)
        pan(event);
    else if (turnsIntoPanning(event))
        startPanning(event);
}

void PannableViewport::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (m_isPanning)
        ungrabMouse();
    else
        release();
}

void PannableViewport::ungrabMouseEvent(QEvent *event)
{
    release();
    Widget::ungrabMouseEvent(event);
}

void PannableViewport::wheelEvent(QGraphicsSceneWheelEvent *event)
{
    const bool isVertical = event->orientation() == Qt::Vertical && pans(Qt::Vertical);
    if (!isVertical && !pans(Qt::Horizontal)) {
        event->ignore();
        return;
    }
    const int towardsEnd = !isVertical && isMirrored() ? 1 : -1;
    (isVertical ? m_y : m_x).push(towardsEnd * event->delta() / wheelNotch * wheelStep);
    startMoving();
    event->accept();
}

void PannableViewport::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        Widget::timerEvent(event);
        return;
    }
    const qreal seconds = m_frameClock.restart() / 1000.0;
    const bool movesX = m_x.advance(seconds);
    const bool movesY = m_y.advance(seconds);
    if (!movesX && !movesY)
        m_timer.stop();
    moveWidget();
}

void PannableViewport::exitDisplay()
{
    stopMoving();
    m_x.jumpTo(m_x.position());
    m_y.jumpTo(m_y.position());
    moveWidget();
    for (PositionMark *mark : {m_xMark, m_yMark}) {
        if (mark)
            mark->leave();
    }
    Widget::exitDisplay();
}

} // namespace Touch
