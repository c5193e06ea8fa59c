// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"

#include "platform/toolkit/pannableviewport.h"

#include <QGraphicsSceneResizeEvent>

namespace Touch {

ApplicationPage::ApplicationPage(QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_centralWidget(new Widget(this))
{ }

ApplicationPage::~ApplicationPage() = default;

void ApplicationPage::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    announceName();
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
}

ApplicationPage::DisplayMode ApplicationPage::componentDisplayMode(Component component) const
{
    return m_displayModes.value(component, Show);
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
    if (m_isContentCreated)
        return;
    m_isContentCreated = true;
    createContent();
}

void ApplicationPage::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    SceneWindow::resizeEvent(event);
    arrange();
}

void ApplicationPage::arrange()
{
    QGraphicsWidget *content = m_viewport ? static_cast<QGraphicsWidget *>(m_viewport) : m_centralWidget;
    content->setGeometry(paddedRect());
}

} // namespace Touch
