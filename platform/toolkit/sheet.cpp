// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/sheet.h"

#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/sheetswipe_p.h"

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneResizeEvent>
#include <QPointer>

namespace Touch {

Sheet::Sheet(QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_viewport(new PannableViewport(this))
    , m_centralWidget(new Widget)
    , m_swipe(new SheetSwipe(this))
{
    m_viewport->setFitsWidget(true);
    m_viewport->setWidget(m_centralWidget);
    setFiltersChildEvents(true);
    connect(m_swipe, &SheetSwipe::moved, this,
            [this](qreal distance) { holdTransition(1 - distance / size().height()); });
    connect(m_swipe, &SheetSwipe::swipedAway, this, &Sheet::leaveBySwipe);
}

Sheet::~Sheet() = default;

void Sheet::setHeaderWidget(QGraphicsWidget *header)
{
    if (m_headerWidget == header)
        return;
    delete m_headerWidget;
    m_headerWidget = header;
    if (header) {
        header->setParentItem(this);
        // It asks for more room by itself only where it lies in a layout.
        header->installEventFilter(this);
    }
    arrange();
}

bool Sheet::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    return SceneWindow::eventFilter(watched, event);
}

void Sheet::stepBack()
{
    cancel();
}

void Sheet::cancel()
{
    const auto *header = qobject_cast<BasicSheetHeader *>(m_headerWidget);
    if (header && header->negativeAction())
        header->negativeAction()->trigger();
    else
        dismiss();
}

void Sheet::leaveBySwipe()
{
    const QPointer<Sheet> guard(this);
    cancel();
    // Whether it closes is for the action.
    if (guard && isOnDisplay())
        m_swipe->slideBack();
}

void Sheet::aboutToLeave()
{
    m_swipe->forget();
    SceneWindow::aboutToLeave();
}

// By its header, from whatever control the finger comes down on there.
bool Sheet::sceneEventFilter(QGraphicsItem *watched, QEvent *event)
{
    if (!m_headerWidget || (watched != m_headerWidget && !m_headerWidget->isAncestorOf(watched)))
        return SceneWindow::sceneEventFilter(watched, event);
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseDoubleClick:
        m_swipe->press(static_cast<QGraphicsSceneMouseEvent *>(event)->scenePos());
        break;
    case QEvent::GraphicsSceneMouseMove:
        if (!m_swipe->moveTo(static_cast<QGraphicsSceneMouseEvent *>(event)->scenePos()))
            break;
        // Takes the mouse from the control that was pressed, which cancels its press.
        grabMouse();
        return true;
    case QEvent::GraphicsSceneMouseRelease:
        m_swipe->release(size().height());
        break;
    default:
        break;
    }
    return SceneWindow::sceneEventFilter(watched, event);
}

void Sheet::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    m_swipe->moveTo(event->scenePos());
}

void Sheet::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    const QPointer<Sheet> guard(this);
    m_swipe->release(size().height());
    if (guard && scene() && scene()->mouseGrabberItem() == this)
        ungrabMouse();
}

void Sheet::ungrabMouseEvent(QEvent *event)
{
    m_swipe->abandon();
    SceneWindow::ungrabMouseEvent(event);
}

void Sheet::setTransition(qreal progress)
{
    // Whole pixels, so that text does not shimmer while it slides.
    setY(qRound((1 - progress) * size().height()));
}

bool Sheet::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        arrange();
    return SceneWindow::event(event);
}

void Sheet::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    SceneWindow::resizeEvent(event);
    arrange();
}

void Sheet::arrange()
{
    QRectF area = paddedRect();
    if (m_headerWidget) {
        const qreal height = m_headerWidget->effectiveSizeHint(Qt::PreferredSize).height();
        m_headerWidget->setGeometry(QRectF(area.topLeft(), QSizeF(area.width(), height)));
        area.setTop(area.top() + height);
    }
    m_viewport->setGeometry(area);
}

} // namespace Touch
