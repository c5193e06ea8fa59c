// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/longpress_p.h"

#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/window.h"

#include <QTimerEvent>

namespace Touch {

namespace {

constexpr int pressTime = 500; ///< milliseconds
constexpr int tremble = 10;    ///< how far a resting finger may move

} // namespace

LongPress::LongPress(Window *window)
    : QObject(window)
    , m_window(window)
{ }

LongPress::~LongPress() = default;

void LongPress::press(const QPoint &place)
{
    m_place = place;
    m_owner = ObjectMenu::ownerOf(m_window->itemAt(place));
    if (m_owner)
        m_timer.start(pressTime, this);
}

void LongPress::moveTo(const QPoint &place)
{
    if (m_timer.isActive() && (place - m_place).manhattanLength() > tremble)
        m_timer.stop();
}

void LongPress::release()
{
    m_timer.stop();
}

bool LongPress::openAt(const QPoint &place)
{
    Widget *owner = ObjectMenu::ownerOf(m_window->itemAt(place));
    if (owner)
        ObjectMenu::open(owner);
    return owner;
}

void LongPress::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_timer.stop();
    if (!m_owner || !m_owner->isOnDisplay())
        return;
    if (QGraphicsItem *pressed = m_window->scene()->mouseGrabberItem())
        pressed->ungrabMouse();
    ObjectMenu::open(m_owner);
}

} // namespace Touch
