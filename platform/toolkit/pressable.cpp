// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/pressable.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPointer>

namespace Touch {

namespace {

constexpr qreal slip = 12;

} // namespace

Pressable::Pressable(QGraphicsItem *parent)
    : Widget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAcceptedMouseButtons(Qt::LeftButton);
}

Pressable::~Pressable() = default;

bool Pressable::isPressKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Select;
}

bool Pressable::isOn(const QRectF &control, const QPointF &finger)
{
    return control.adjusted(-slip, -slip, slip, slip).contains(finger);
}

QStringList Pressable::accessibleActions() const
{
    return {QAccessibleActionInterface::pressAction()};
}

void Pressable::doAccessibleAction(const QString &)
{
    tapped();
}

void Pressable::downChanged()
{
    update();
}

void Pressable::setDown(bool isDown)
{
    if (m_isDown == isDown)
        return;
    m_isDown = isDown;
    downChanged();
}

void Pressable::letGo()
{
    const QPointer<Pressable> guard(this);
    setDown(false);
    if (guard)
        tapped();
}

void Pressable::mousePressEvent(QGraphicsSceneMouseEvent *)
{
    setDown(true);
}

void Pressable::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    setDown(isOn(rect(), event->pos()));
}

void Pressable::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (m_isDown)
        letGo();
}

// Whoever takes the press over, such as a viewport that pans, ends it.
void Pressable::ungrabMouseEvent(QEvent *event)
{
    setDown(false);
    Widget::ungrabMouseEvent(event);
}

void Pressable::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(event))
        Widget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        setDown(true);
}

void Pressable::keyReleaseEvent(QKeyEvent *event)
{
    if (!isPressKey(event) || event->isAutoRepeat() || !m_isDown)
        Widget::keyReleaseEvent(event);
    else
        letGo();
}

void Pressable::focusOutEvent(QFocusEvent *event)
{
    setDown(false);
    Widget::focusOutEvent(event);
}

} // namespace Touch
