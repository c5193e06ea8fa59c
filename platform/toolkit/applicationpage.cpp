// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"

#include "platform/toolkit/pagechrome_p.h"
#include "platform/toolkit/pannableviewport.h"

#include <QGraphicsSceneResizeEvent>

namespace Touch {

ApplicationPage::ApplicationPage(QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_centralWidget(new Widget(this))
{ }

ApplicationPage::~ApplicationPage()
{
    // While it leaves its window, that tells the chrome of a change.
    delete m_chrome;
}

void ApplicationPage::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    announceName();
    updateChrome();
    emit titleChanged(title);
}

void ApplicationPage::createContent()
{
    m_isContentCreated = true;
}

void ApplicationPage::setComponentsDisplayMode(int componentMask, DisplayMode mode)
{
    for (const int component : {HomeButton, EscapeButton, NavigationBar}) {
        if (componentMask & component)
            m_displayModes[component] = mode;
    }
    updateChrome();
}

void ApplicationPage::updateChrome()
{
    if (targetWindow() && !m_chrome && componentDisplayMode(NavigationBar) != Hide)
        makeChrome();
    if (!m_chrome)
        return;
    m_chrome->follow(targetWindow());
    m_chrome->update();
    arrange();
}

ApplicationPage::DisplayMode ApplicationPage::componentDisplayMode(Component component) const
{
    return m_displayModes.value(component, component == NavigationBar ? Hide : Show);
}

void ApplicationPage::setPannable(bool isPannable)
{
    if (m_isPannable == isPannable)
        return;
    m_isPannable = isPannable;
    if (!m_viewport) {
        m_viewport = new PannableViewport(this);
        m_viewport->setWidget(m_centralWidget);
    }
    m_viewport->setPanDirection(isPannable ? Qt::Vertical : Qt::Orientations());
    arrange();
}

void ApplicationPage::aboutToAppear()
{
    if (!m_isContentCreated) {
        m_isContentCreated = true;
        createContent();
    }
    updateChrome();
}

void ApplicationPage::makeChrome()
{
    m_chrome = new PageChrome(this);
    connect(m_chrome, &PageChrome::resized, this, &ApplicationPage::arrange);
}

void ApplicationPage::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    SceneWindow::resizeEvent(event);
    arrange();
}

void ApplicationPage::arrange()
{
    QGraphicsWidget *content = m_viewport ? static_cast<QGraphicsWidget *>(m_viewport) : m_centralWidget;
    content->setGeometry(m_chrome ? m_chrome->place(paddedRect()) : paddedRect());
}

} // namespace Touch
