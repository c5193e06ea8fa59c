// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/keyboardroom_p.h"

#include "platform/toolkit/window.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QInputMethod>

namespace Touch {

namespace {

constexpr qreal gap = 16; ///< kept free between the field and the keyboard

KeyboardArea replacement;

QRectF keyboardArea()
{
    if (replacement)
        return replacement();
    const QInputMethod *inputMethod = QGuiApplication::inputMethod();
    return inputMethod->isVisible() ? inputMethod->keyboardRectangle() : QRectF();
}

} // namespace

void setKeyboardArea(const KeyboardArea &area)
{
    replacement = area;
}

KeyboardRoom::KeyboardRoom(Window *window)
    : QObject(window)
    , m_window(window)
{
    const QInputMethod *inputMethod = QGuiApplication::inputMethod();
    connect(inputMethod, &QInputMethod::keyboardRectangleChanged, this, &KeyboardRoom::update);
    connect(inputMethod, &QInputMethod::visibleChanged, this, &KeyboardRoom::update);
    connect(window->scene(), &QGraphicsScene::focusItemChanged, this, &KeyboardRoom::update);
}

KeyboardRoom::~KeyboardRoom() = default;

qreal KeyboardRoom::wantedShift() const
{
    const QRectF keyboard = keyboardArea();
    QGraphicsItem *field = m_window->scene()->focusItem();
    if (keyboard.isEmpty() || !field || !(field->flags() & QGraphicsItem::ItemAcceptsInputMethod))
        return 0;
    const QRectF edited = field->sceneBoundingRect();
    // Never so far that the field leaves at the other end.
    return qBound(0.0, edited.bottom() + gap - keyboard.top(), qMax(0.0, edited.top() - gap));
}

void KeyboardRoom::update()
{
    const qreal shift = wantedShift();
    const QRectF shown(QPointF(0, qRound(shift)), m_window->viewport()->size());
    if (m_window->sceneRect() != shown)
        m_window->setSceneRect(shown);
}

} // namespace Touch
