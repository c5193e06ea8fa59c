// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QRectF>

class QVariantAnimation;

namespace Touch {

class ApplicationPage;
class NavigationBar;
class TopEdge;
class Window;

/**
 * The navigation bar of a page: always there, or slid in from the top edge for a while when the user touches that edge
 * or tabs to it. Made for pages that have one; owned by its page, as are its items.
 */
class PageChrome : public QObject
{
    Q_OBJECT

public:
    explicit PageChrome(ApplicationPage *page);
    ~PageChrome() override;

    /** Takes over the page's display modes, its title and its place in the window. */
    void update();
    /** Lays itself out in an area; returns what it leaves to the page's content. */
    QRectF place(const QRectF &area);
    void follow(Window *window);

    void reveal();
    void hideAgain();

signals:
    /** The bar wants another height. */
    void resized();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    bool isAutoHidden() const;
    bool isInUse() const;
    void slideTo(qreal shown);
    void setShown(qreal shown);
    void goHome();
    void stepBack();

    ApplicationPage *m_page;
    NavigationBar *m_bar;
    TopEdge *m_edge;
    QPointer<Window> m_window;
    bool m_isRevealed = false;
    qreal m_shown = 0; ///< 0 is out of sight, 1 is in place
    QBasicTimer m_timer;
    QVariantAnimation *m_animation = nullptr;
};

} // namespace Touch
