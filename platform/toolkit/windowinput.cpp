// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
// What fingers and keys do to a window.
#include "platform/toolkit/window.h"

#include "platform/toolkit/longpress_p.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/scenewindow.h"

#include <QContextMenuEvent>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QStyleHints>

namespace Touch {

namespace {

/** How far apart the two taps of a double tap may be. */
constexpr int fingerWidth = 40;

} // namespace

// What the user does goes to where the window will be when its transition is over.
void Window::keyPressEvent(QKeyEvent *event)
{
    finishTransitions();
    setFocusShown(true);
    if (event->key() == Qt::Key_Menu && openMenuOfFocus())
        return;
    QGraphicsView::keyPressEvent(event);
    if (event->isAccepted() || (event->key() != Qt::Key_Escape && event->key() != Qt::Key_Back))
        return;
    event->accept();
    // Escape leaves what was opened; the page itself was not. The back key of a phone leaves that too.
    if (event->key() == Qt::Key_Escape)
        stepBack();
    else
        close();
}

bool Window::openMenuOfFocus()
{
    Widget *owner = ObjectMenu::ownerOf(scene()->focusItem());
    if (owner)
        ObjectMenu::open(owner);
    return owner;
}

SceneWindow *Window::sceneWindowAt(const QPoint &place) const
{
    for (QGraphicsItem *item = itemAt(place); item; item = item->parentItem()) {
        if (auto *sceneWindow = qobject_cast<SceneWindow *>(item->toGraphicsObject()))
            return sceneWindow;
    }
    return nullptr;
}

bool Window::isStrayTap(const QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool isSecondTap = m_pressTime && event->timestamp() - *m_pressTime <= interval
        && (place - m_pressPlace).manhattanLength() <= fingerWidth;
    m_pressTime = event->timestamp();
    m_pressPlace = place;
    SceneWindow *sceneWindow = sceneWindowAt(place);
    if (isSecondTap && sceneWindow != m_pressed)
        return true;
    m_pressed = sceneWindow;
    return false;
}

void Window::mousePressEvent(QMouseEvent *event)
{
    finishTransitions();
    setFocusShown(false);
    if (isStrayTap(event))
        return;
    QGraphicsView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        m_longPress->press(event->position().toPoint());
}

void Window::mouseMoveEvent(QMouseEvent *event)
{
    m_longPress->moveTo(event->position().toPoint());
    QGraphicsView::mouseMoveEvent(event);
}

void Window::mouseReleaseEvent(QMouseEvent *event)
{
    m_longPress->release();
    QGraphicsView::mouseReleaseEvent(event);
}

// The menu key comes as a key as well.
void Window::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse || !m_longPress->openAt(event->pos()))
        QGraphicsView::contextMenuEvent(event);
}

void Window::mouseDoubleClickEvent(QMouseEvent *event)
{
    finishTransitions();
    if (!isStrayTap(event))
        QGraphicsView::mouseDoubleClickEvent(event);
}

void Window::wheelEvent(QWheelEvent *event)
{
    finishTransitions();
    QGraphicsView::wheelEvent(event);
    // The view itself never scrolls.
    event->accept();
}

} // namespace Touch
