// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"

#include "platform/toolkit/applicationpage.h"

namespace Touch {

ApplicationWindow::ApplicationWindow(QWidget *parent)
    : Window(parent)
{
    connect(this, &Window::stackChanged, this, &ApplicationWindow::followCurrentPage);
}

ApplicationWindow::~ApplicationWindow()
{
    disconnect(this, &Window::stackChanged, this, &ApplicationWindow::followCurrentPage);
}

ApplicationPage *ApplicationWindow::currentPage() const
{
    const QList<SceneWindow *> stack = sceneWindows();
    for (auto it = stack.crbegin(); it != stack.crend(); ++it) {
        if (auto *page = qobject_cast<ApplicationPage *>(*it))
            return page;
    }
    return nullptr;
}

void ApplicationWindow::followCurrentPage()
{
    disconnect(m_titleConnection);
    const ApplicationPage *page = currentPage();
    if (!page)
        return;
    setWindowTitle(page->title());
    m_titleConnection = connect(page, &ApplicationPage::titleChanged, this, &QWidget::setWindowTitle);
}

} // namespace Touch
