// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/scenewindow.h"

namespace Touch {

class PannableViewport;
class SheetSwipe;

/**
 * A modal window that slides up over the whole window: a header on top, the central widget below it, panned where it
 * cannot be made low enough. It owns both.
 */
class Sheet : public SceneWindow
{
    Q_OBJECT

public:
    explicit Sheet(QGraphicsItem *parent = nullptr);
    ~Sheet() override;

    QGraphicsWidget *headerWidget() const { return m_headerWidget; }
    /** Takes the header; the one before is deleted. */
    void setHeaderWidget(QGraphicsWidget *header);

    Widget *centralWidget() const { return m_centralWidget; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Dialog; }

protected:
    int layer() const override { return 1; }
    void aboutToLeave() override;
    /** As its header's negative action, if there is one. */
    void stepBack() override;
    void setTransition(qreal progress) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool sceneEventFilter(QGraphicsItem *watched, QEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;

private:
    void arrange();
    void cancel();
    void leaveBySwipe();

    QGraphicsWidget *m_headerWidget = nullptr;
    PannableViewport *m_viewport;
    Widget *m_centralWidget;
    SheetSwipe *m_swipe;
};

} // namespace Touch
