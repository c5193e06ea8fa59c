// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/sheet.h"

#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/pannableviewport.h"

#include <QAction>
#include <QGraphicsSceneResizeEvent>

namespace Touch {

Sheet::Sheet(QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_viewport(new PannableViewport(this))
    , m_centralWidget(new Widget)
{
    m_viewport->setFitsWidget(true);
    m_viewport->setWidget(m_centralWidget);
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
    const auto *header = qobject_cast<BasicSheetHeader *>(m_headerWidget);
    if (header && header->negativeAction())
        header->negativeAction()->trigger();
    else
        SceneWindow::stepBack();
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
