// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/banner.h"

#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/window.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QTimerEvent>

namespace Touch {

namespace {

constexpr qreal rise = 24;

} // namespace

Banner::Banner(QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_label(new Label(this))
{
    m_label->setObjectName(QStringLiteral("bannerTitle"));
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    auto *column = new LinearLayoutPolicy(new Layout(this), Qt::Vertical);
    column->addItem(m_label);
}

Banner::~Banner() = default;

QString Banner::title() const
{
    return m_label->text();
}

void Banner::setTitle(const QString &title)
{
    if (m_label->text() == title)
        return;
    m_label->setText(title);
    // Its size is asked for before the layout tells of the change.
    updateGeometry();
    if (!isOnDisplay())
        return;
    setGeometry(placement(scene()->sceneRect().size()));
    announce();
}

void Banner::announce()
{
    QAccessibleEvent event(this, QAccessible::Alert);
    tell(&event);
}

void Banner::setDisplayTime(int milliseconds)
{
    m_displayTime = milliseconds;
}

QRectF Banner::placement(const QSizeF &windowSize) const
{
    const QRectF area = QRectF(QPointF(0, 0), windowSize).marginsRemoved(style().margins);
    const qreal width = qMin(area.width(), effectiveSizeHint(Qt::PreferredSize).width());
    const qreal height = effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1)).height();
    return QRectF(qRound(area.center().x() - width / 2), qRound(area.bottom() - height), width, height);
}

void Banner::aboutToAppear()
{
    const QList<SceneWindow *> others = targetWindow()->sceneWindows();
    for (SceneWindow *other : others) {
        if (other != this && qobject_cast<Banner *>(other))
            other->disappear();
    }
    m_timer.start(m_displayTime, this);
    announce();
}

void Banner::setTransition(qreal progress)
{
    setOpacity(progress);
    setTransform(QTransform::fromTranslate(0, qRound((1 - progress) * rise)));
}

void Banner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        SceneWindow::timerEvent(event);
        return;
    }
    m_timer.stop();
    disappear();
}

void Banner::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    disappear();
}

} // namespace Touch
