// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/stopcontrol.h"

#include "platform/ringer/texts/ringtexts.h"
#include "platform/toolkit/pressable.h"
#include "platform/toolkit/theme.h"

#include <algorithm>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

using Touch::Pressable;
using Touch::Theme;

namespace {

constexpr auto Inset = 6.0; ///< between the track and the knob
constexpr std::chrono::milliseconds ReturnTime{180};
// A finger need not come quite to the end.
constexpr auto EnoughProgress = 0.92;

} // namespace

StopControl::StopControl(QGraphicsItem *parent)
    : Widget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setAcceptedMouseButtons(Qt::LeftButton);
    connect(&m_run, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setProgress(value.toDouble()); });
    connect(&m_run, &QVariantAnimation::finished, this, [this] {
        if (m_phase == Phase::Holding && m_progress >= 1)
            finish();
    });
}

StopControl::~StopControl() = default;

void StopControl::setGesture(StopGesture gesture)
{
    if (m_gesture == gesture)
        return;
    m_gesture = gesture;
    reset();
    update();
}

QRectF StopControl::knobRect() const
{
    const auto area = rect().adjusted(Inset, Inset, -Inset, -Inset);
    const auto offset = m_progress * way();
    const auto left = isMirrored() ? area.right() - area.height() - offset : area.left() + offset;
    return {left, area.top(), area.height(), area.height()};
}

bool StopControl::showsWholeText() const
{
    return QFontMetricsF(hintFont()).horizontalAdvance(hint()) <= hintRect().width();
}

QFont StopControl::hintFont() const
{
    return style().fittedFont(hint(), hintRect().width());
}

// Beside the knob, where there is one.
QRectF StopControl::hintRect() const
{
    const auto knob = m_gesture == StopGesture::Slide ? rect().height() : style().radius / 2;
    return isMirrored() ? rect().adjusted(style().radius / 2, 0, -knob, 0)
                        : rect().adjusted(knob, 0, -style().radius / 2, 0);
}

void StopControl::reset()
{
    m_phase = Phase::Idle;
    m_run.stop();
    setProgress(0);
}

QAccessible::Role StopControl::accessibleRole() const
{
    return QAccessible::Button;
}

QStringList StopControl::accessibleActions() const
{
    return {QAccessibleActionInterface::pressAction()};
}

void StopControl::doAccessibleAction(const QString &)
{
    finish();
}

QString StopControl::shownText() const
{
    return RingTexts::stop();
}

QString StopControl::hint() const
{
    if (m_gesture == StopGesture::Hold) {
        //% "Hold to stop"
        return qtTrId("qtn_ring_hold_to_stop");
    }
    //% "Slide to stop"
    return qtTrId("qtn_ring_slide_to_stop");
}

double StopControl::way() const
{
    return std::max(1.0, rect().width() - rect().height());
}

QSizeF StopControl::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return Widget::sizeHint(which, constraint);
    const QFontMetricsF metrics(style().font());
    // Large words must not push it, and the answers above it, out of a narrow screen.
    const auto width = which == Qt::MinimumSize ? 0 : metrics.horizontalAdvance(hint());
    return styledSize(which, {width, metrics.height()});
}

void StopControl::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_gesture == StopGesture::Hold) {
        hold();
        return;
    }
    // Only from the knob: a press that slips across the screen is no slide.
    if (!knobRect().adjusted(-Inset, -Inset, Inset, Inset).contains(event->pos()))
        return;
    m_run.stop();
    m_phase = Phase::Sliding;
    m_grip = event->pos().x() - knobRect().left();
    update();
}

void StopControl::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_phase == Phase::Holding && m_gesture == StopGesture::Hold && !rect().contains(event->pos()))
        letGo();
    if (m_phase != Phase::Sliding)
        return;
    const auto left = event->pos().x() - m_grip;
    const auto offset = isMirrored() ? rect().width() - Inset - (rect().height() - 2 * Inset) - left : left - Inset;
    setProgress(std::clamp(offset / way(), 0.0, 1.0));
}

void StopControl::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (m_phase == Phase::Sliding && m_progress >= EnoughProgress)
        finish();
    else
        letGo();
}

void StopControl::ungrabMouseEvent(QEvent *event)
{
    letGo();
    Widget::ungrabMouseEvent(event);
}

void StopControl::keyPressEvent(QKeyEvent *event)
{
    if (!Pressable::isPressKey(event))
        Widget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        hold();
}

void StopControl::keyReleaseEvent(QKeyEvent *event)
{
    if (!Pressable::isPressKey(event))
        Widget::keyReleaseEvent(event);
    else if (!event->isAutoRepeat())
        letGo();
}

void StopControl::focusOutEvent(QFocusEvent *event)
{
    letGo();
    Widget::focusOutEvent(event);
}

void StopControl::changeEvent(QEvent *event)
{
    Widget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
}

void StopControl::hold()
{
    m_phase = Phase::Holding;
    const auto left = int(HoldTime * (1 - m_progress));
    runTo(1, std::chrono::milliseconds(left));
}

void StopControl::letGo()
{
    if (m_phase == Phase::Idle)
        return;
    m_phase = Phase::Idle;
    runTo(0, ReturnTime);
}

void StopControl::runTo(double progress, std::chrono::milliseconds time)
{
    m_run.stop();
    m_run.setStartValue(m_progress);
    m_run.setEndValue(progress);
    m_run.setDuration(std::max(1, int(time.count())));
    m_run.start();
    update();
}

void StopControl::finish()
{
    reset();
    emit stopped();
}

void StopControl::setProgress(double progress)
{
    m_progress = progress;
    update();
}

void StopControl::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *widget)
{
    painter->setRenderHint(QPainter::Antialiasing);
    paintTrack(painter);
    paintText(painter);
    if (m_gesture == StopGesture::Slide)
        paintKnob(painter, widget);
    paintFocusRing(painter);
}

// What has been done already is filled, from where the knob started.
void StopControl::paintTrack(QPainter *painter)
{
    paintBackground(painter, style().background);
    if (m_progress <= 0)
        return;
    QPainterPath pill;
    pill.addRoundedRect(rect(), style().radius, style().radius);
    const auto width = m_gesture == StopGesture::Slide ? knobRect().width() + 2 * Inset + m_progress * way()
                                                       : m_progress * rect().width();
    painter->save();
    painter->setClipPath(pill);
    painter->fillRect(QRectF(isMirrored() ? rect().right() - width : 0, 0, width, rect().height()),
                      style().pressedBackground);
    painter->restore();
}

void StopControl::paintText(QPainter *painter)
{
    const auto room = hintRect();
    const auto font = hintFont();
    painter->setFont(font);
    auto color = style().color;
    // The knob comes over the words.
    if (m_gesture == StopGesture::Slide)
        color.setAlphaF(color.alphaF() * float(std::max(0.0, 1 - 2 * m_progress)));
    painter->setPen(color);
    const QFontMetricsF metrics(font);
    painter->drawText(room, Qt::AlignCenter, metrics.elidedText(hint(), Qt::ElideRight, room.width()));
}

void StopControl::paintKnob(QPainter *painter, QWidget *widget)
{
    const auto knob = knobRect();
    painter->setPen(Qt::NoPen);
    painter->setBrush(style().checkedBackground);
    painter->drawRoundedRect(knob, style().radius - Inset, style().radius - Inset);
    const auto icon = style().iconSize;
    const auto id = QStringLiteral("icon-m-common-drilldown-arrow");
    const auto pixmap = Theme::instance().icon(isMirrored() ? Theme::mirroredIcon(id) : id, icon.toSize(),
                                               style().checkedColor, widget ? widget->devicePixelRatioF() : 1);
    painter->drawPixmap(knob.center() - QPointF(icon.width(), icon.height()) / 2, pixmap);
}
