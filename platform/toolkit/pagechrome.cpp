// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/pagechrome_p.h"

#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/motion_p.h"
#include "platform/toolkit/navigationbar_p.h"
#include "platform/toolkit/topedge_p.h"
#include "platform/toolkit/window.h"

#include <QGraphicsScene>
#include <QTimerEvent>
#include <QVariantAnimation>

namespace Touch {

namespace {

constexpr int slideTime = 220;
constexpr int stayTime = 4000;
/** Above the page's content. */
constexpr qreal barLevel = 1;
constexpr qreal edgeLevel = 2;

} // namespace

PageChrome::PageChrome(ApplicationPage *page)
    : QObject(page)
    , m_page(page)
    , m_bar(new NavigationBar(page))
    , m_edge(new TopEdge(page))
{
    m_bar->setZValue(barLevel);
    m_edge->setZValue(edgeLevel);
    m_bar->installEventFilter(this);
    connect(m_edge, &TopEdge::touched, this, &PageChrome::reveal);
    connect(m_bar->escapeButton(), &Button::clicked, this, &PageChrome::stepBack);
    connect(m_bar->homeButton(), &Button::clicked, this, &PageChrome::goHome);
}

PageChrome::~PageChrome() = default;

void PageChrome::follow(Window *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    connect(window, &Window::stackChanged, this, &PageChrome::update);
    update();
}

bool PageChrome::isAutoHidden() const
{
    return m_page->componentDisplayMode(ApplicationPage::NavigationBar) == ApplicationPage::AutoHide;
}

void PageChrome::update()
{
    const auto isWanted = [this](ApplicationPage::Component component) {
        return m_page->componentDisplayMode(component) != ApplicationPage::Hide;
    };
    const bool leadsBack = m_window && m_window->leadsBackFrom(m_page);
    m_bar->setTitle(m_page->title());
    m_bar->escapeButton()->setVisible(isWanted(ApplicationPage::EscapeButton) && leadsBack);
    m_bar->homeButton()->setVisible(isWanted(ApplicationPage::HomeButton) && !leadsBack);
    m_edge->setVisible(isAutoHidden() && !m_isRevealed);
    const bool isShown = isWanted(ApplicationPage::NavigationBar) && (m_isRevealed || !isAutoHidden());
    setShown(isShown ? 1 : 0);
}

QRectF PageChrome::place(const QRectF &area)
{
    const qreal height = m_bar->effectiveSizeHint(Qt::PreferredSize).height();
    m_bar->resize(area.width(), height);
    m_edge->setGeometry(QRectF(area.topLeft(), QSizeF(area.width(), TopEdge::height)));
    setShown(m_shown);
    const bool takesRoom = m_page->componentDisplayMode(ApplicationPage::NavigationBar) == ApplicationPage::Show;
    return takesRoom ? area.adjusted(0, height, 0, 0) : area;
}

void PageChrome::reveal()
{
    if (!isAutoHidden())
        return;
    m_timer.start(stayTime, this);
    if (m_isRevealed)
        return;
    m_isRevealed = true;
    setShown(m_shown);
    if (m_edge->hasFocus()) {
        Button *first = m_bar->escapeButton()->isVisible() ? m_bar->escapeButton() : m_bar->homeButton();
        first->setFocus(Qt::TabFocusReason);
    }
    m_edge->setVisible(false);
    slideTo(1);
}

void PageChrome::hideAgain()
{
    m_timer.stop();
    if (!m_isRevealed)
        return;
    m_isRevealed = false;
    m_edge->setVisible(isAutoHidden());
    if (isAutoHidden())
        slideTo(0);
}

void PageChrome::slideTo(qreal shown)
{
    if (!m_page->isOnDisplay() || hasReducedMotion()) {
        setShown(shown);
        return;
    }
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(slideTime);
        m_animation->setEasingCurve(QEasingCurve::OutCubic);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setShown(value.toReal()); });
    }
    m_animation->stop();
    m_animation->setStartValue(m_shown);
    m_animation->setEndValue(shown);
    m_animation->start();
}

void PageChrome::setShown(qreal shown)
{
    m_shown = shown;
    m_bar->setVisible(shown > 0 || m_isRevealed);
    m_bar->setPos(0, qRound((shown - 1) * m_bar->size().height()));
}

// It stays for as long as the keyboard or a finger is on it.
bool PageChrome::isInUse() const
{
    const QGraphicsItem *focus = m_page->scene() ? m_page->scene()->focusItem() : nullptr;
    const QGraphicsItem *grabber = m_page->scene() ? m_page->scene()->mouseGrabberItem() : nullptr;
    return (focus && m_bar->isAncestorOf(focus)) || (grabber && m_bar->isAncestorOf(grabber));
}

void PageChrome::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        QObject::timerEvent(event);
    else if (!m_page->isVisible() || !isInUse())
        hideAgain();
}

bool PageChrome::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_bar && event->type() == QEvent::LayoutRequest)
        emit resized();
    return QObject::eventFilter(watched, event);
}

void PageChrome::stepBack()
{
    hideAgain();
    if (m_window)
        m_window->stepBack();
}

void PageChrome::goHome()
{
    hideAgain();
    if (m_window)
        m_window->showMinimized();
}

} // namespace Touch
