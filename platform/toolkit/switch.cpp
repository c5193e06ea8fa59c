// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/switch.h"

#include "platform/toolkit/motion_p.h"

#include <QPainter>
#include <QVariantAnimation>

namespace Touch {

namespace {

constexpr int slideTime = 160;
constexpr qreal knobGap = 4;

QColor mixed(const QColor &from, const QColor &to, qreal share)
{
    const auto mix = [share](float a, float b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()), mix(from.blueF(), to.blueF()),
                            mix(from.alphaF(), to.alphaF()));
}

} // namespace

Switch::Switch(QGraphicsItem *parent)
    : Button(parent)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &Button::toggled, this, &Switch::slideKnob);
}

Switch::~Switch() = default;

void Switch::slideKnob()
{
    const qreal target = isChecked() ? 1 : 0;
    if (!isOnDisplay() || hasReducedMotion()) {
        setKnob(target);
        return;
    }
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(slideTime);
        m_animation->setEasingCurve(QEasingCurve::InOutCubic);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setKnob(value.toReal()); });
    }
    m_animation->stop();
    m_animation->setStartValue(m_knob);
    m_animation->setEndValue(target);
    m_animation->start();
}

void Switch::setKnob(qreal position)
{
    m_knob = position;
    update();
}

void Switch::settle()
{
    if (m_animation)
        m_animation->stop();
    setKnob(isChecked() ? 1 : 0);
}

void Switch::exitDisplay()
{
    settle();
    Button::exitDisplay();
}

QSizeF Switch::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF size = Button::sizeHint(which, constraint);
    return which == Qt::MaximumSize ? size : size.expandedTo(style().iconSize + QSizeF(2 * knobGap, 0));
}

void Switch::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Style &look = style();
    QRectF track(QPointF(0, 0), look.iconSize);
    track.moveCenter(rect().center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(painter->opacity() * (isEnabled() ? 1 : 0.5));
    painter->setPen(Qt::NoPen);
    painter->setBrush(mixed(look.background, look.checkedBackground, m_knob));
    painter->drawRoundedRect(track, track.height() / 2, track.height() / 2);
    const qreal diameter = track.height() - 2 * knobGap;
    const qreal way = track.width() - 2 * knobGap - diameter;
    const qreal share = layoutDirection() == Qt::RightToLeft ? 1 - m_knob : m_knob;
    QRectF knob(track.left() + knobGap + way * share, track.top() + knobGap, diameter, diameter);
    if (isDown())
        knob.adjust(-1, -1, 1, 1);
    painter->setBrush(mixed(look.color, look.checkedColor, m_knob));
    painter->drawEllipse(knob);
    painter->restore();
    paintFocusRing(painter);
}

} // namespace Touch
