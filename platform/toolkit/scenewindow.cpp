// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/scenewindow.h"

#include "platform/toolkit/motion_p.h"
#include "platform/toolkit/taborder_p.h"
#include "platform/toolkit/window.h"

#include <algorithm>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QLoggingCategory>
#include <QVariantAnimation>

namespace Touch {

Q_LOGGING_CATEGORY(lcSceneWindow, "touch.scenewindow")

namespace {

constexpr int transitionTime = 220;

} // namespace

SceneWindow::SceneWindow(QGraphicsItem *parent)
    : Widget(parent)
{
    // It takes the focus itself when it appears, so that keys reach it and Tab goes on to its first control.
    setFlag(ItemIsFocusable);
    setVisible(false);
}

SceneWindow::~SceneWindow()
{
    if (m_window)
        m_window->forget(this);
}

void SceneWindow::appear(Window *window, DeletionPolicy policy)
{
    Window *target = window ? window : Window::active();
    if (!target) {
        qCWarning(lcSceneWindow) << "There is no window to appear in";
        return;
    }
    finishTransition();
    const bool wasShown = isOnDisplay();
    if (m_window && m_window != target)
        m_window->forget(this);
    m_window = target;
    m_policy = policy;
    aboutToAppear();
    target->present(this);
    if (takesInput())
        setFocus(Qt::ActiveWindowFocusReason);
    if (wasShown)
        m_window->updateCovered();
    else
        startTransition(State::Appearing);
}

void SceneWindow::disappear()
{
    leave(false);
}

void SceneWindow::dismiss()
{
    leave(true);
}

void SceneWindow::leave(bool isDismissed)
{
    if (!isOnDisplay())
        return;
    const QPointer<SceneWindow> guard(this);
    finishTransition();
    // Whoever listens to appeared() may have closed it.
    if (!guard || !isOnDisplay())
        return;
    m_isDismissed = isDismissed;
    aboutToLeave();
    startTransition(State::Disappearing);
}

void SceneWindow::startTransition(State state)
{
    m_state = state;
    const bool appears = state == State::Appearing;
    const qreal from = appears ? 0 : m_held;
    m_held = 1;
    setVisible(true);
    if (appears)
        m_window->updateCovered();
    else
        m_window->withdraw(this);
    if (!m_window->isOnScreen() || hasReducedMotion()) {
        transitionDone();
        return;
    }
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(transitionTime);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setTransition(value.toReal()); });
        connect(m_animation, &QVariantAnimation::finished, this, &SceneWindow::transitionDone);
    }
    m_animation->setEasingCurve(appears ? QEasingCurve::OutCubic : QEasingCurve::InCubic);
    m_animation->setStartValue(from);
    m_animation->setEndValue(appears ? 1.0 : 0.0);
    m_animation->start();
}

void SceneWindow::finishTransition()
{
    if (!isInTransition())
        return;
    if (m_animation)
        m_animation->stop();
    transitionDone();
}

void SceneWindow::transitionDone()
{
    setTransition(1);
    if (m_state == State::Disappearing) {
        gone();
        return;
    }
    m_state = State::Shown;
    m_window->updateCovered();
    emit appeared();
}

void SceneWindow::gone()
{
    m_state = State::Hidden;
    setVisible(false);
    const QPointer<SceneWindow> guard(this);
    const bool wasDismissed = m_isDismissed;
    emit disappeared();
    if (guard && wasDismissed)
        emit dismissed();
    // A listener may have shown it again.
    if (!guard || m_state != State::Hidden)
        return;
    if (m_policy == DestroyWhenDone || (m_policy == DestroyWhenDismissed && wasDismissed))
        deleteLater();
}

void SceneWindow::place(const QSizeF &windowSize)
{
    setGeometry(placement(windowSize));
}

void SceneWindow::leaveScene()
{
    if (m_policy != KeepWhenDone) {
        delete this;
        return;
    }
    if (m_animation)
        m_animation->stop();
    m_state = State::Hidden;
    setVisible(false);
    m_window->forget(this);
    m_window.clear();
    if (scene())
        scene()->removeItem(this);
}

void SceneWindow::rememberFocus()
{
    QGraphicsItem *item = scene()->focusItem();
    m_focusItem = item && isAncestorOf(item) ? item->toGraphicsObject() : nullptr;
}

void SceneWindow::recallFocus()
{
    const bool canHaveIt
        = m_focusItem && isAncestorOf(m_focusItem) && m_focusItem->isVisible() && m_focusItem->isEnabled();
    QGraphicsItem *item = canHaveIt ? static_cast<QGraphicsItem *>(m_focusItem) : this;
    item->setFocus(Qt::ActiveWindowFocusReason);
    m_focusItem.clear();
}

QRectF SceneWindow::placement(const QSizeF &windowSize) const
{
    return {QPointF(0, 0), windowSize};
}

void SceneWindow::aboutToAppear() { }

void SceneWindow::aboutToLeave() { }

void SceneWindow::stepBack()
{
    dismiss();
}

Window *SceneWindow::targetWindow() const
{
    return m_window;
}

void SceneWindow::setTransition(qreal progress)
{
    setOpacity(progress);
}

void SceneWindow::holdTransition(qreal progress)
{
    if (!isOnDisplay())
        return;
    const bool couldCover = coversNow();
    m_held = progress;
    setTransition(progress);
    if (couldCover != coversNow())
        m_window->updateCovered();
}

// A press or a wheel beside the controls must not reach what lies beneath.
void SceneWindow::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->setAccepted(takesInput());
}

bool SceneWindow::focusNextPrevChild(bool next)
{
    const QList<QGraphicsWidget *> stops = tabStops(this);
    if (stops.isEmpty())
        return true;
    const auto now = std::find(stops.begin(), stops.end(), m_window ? m_window->lastFocused() : nullptr);
    const qsizetype at = now == stops.end() ? -1 : now - stops.begin();
    const qsizetype count = stops.size();
    const qsizetype to = next ? (at + 1) % count : (at <= 0 ? count : at) - 1;
    stops[to]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void SceneWindow::wheelEvent(QGraphicsSceneWheelEvent *event)
{
    event->setAccepted(takesInput());
}

} // namespace Touch
