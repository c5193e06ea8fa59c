// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"

#include "platform/toolkit/applicationpage.h"

#include <optional>
#include <QWindow>
#include <utility>

namespace Touch {

namespace {

struct ChainingData
{
    WId windowId;
    QString pageTitle;
};

std::optional<ChainingData> nextChain;

} // namespace

ApplicationWindow::ApplicationWindow(QWidget *parent)
    : Window(parent)
{
    takeChainingData();
    connect(this, &Window::stackChanged, this, &ApplicationWindow::followStack);
}

ApplicationWindow::~ApplicationWindow()
{
    disconnect(this, &Window::stackChanged, this, &ApplicationWindow::followStack);
}

void ApplicationWindow::pushChainingData(WId windowId, const QString &pageTitle)
{
    nextChain = ChainingData{windowId, pageTitle};
}

void ApplicationWindow::takeChainingData()
{
    const auto chain = std::exchange(nextChain, std::nullopt);
    if (!chain)
        return;
    m_chainedTo = qobject_cast<Window *>(QWidget::find(chain->windowId));
    m_chainedTitle = chain->pageTitle;
    setWindowTitle(m_chainedTitle);
    if (m_chainedTo)
        setWindowModality(Qt::WindowModal);
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

void ApplicationWindow::followStack()
{
    followCurrentPage();
    if (!m_chainedTo)
        return;
    if (!sceneWindows().isEmpty())
        show();
    else
        QMetaObject::invokeMethod(this, &ApplicationWindow::closeIfEmpty, Qt::QueuedConnection);
}

// What went may have made room for another.
void ApplicationWindow::closeIfEmpty()
{
    if (sceneWindows().isEmpty())
        closeAtOnce();
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

void ApplicationWindow::showEvent(QShowEvent *event)
{
    if (m_chainedTo && !event->spontaneous()) {
        windowHandle()->setTransientParent(m_chainedTo->windowHandle());
        setGeometry(m_chainedTo->geometry());
        setWindowState(m_chainedTo->windowState() & (Qt::WindowFullScreen | Qt::WindowMaximized));
    }
    Window::showEvent(event);
    if (m_chainedTo && !event->spontaneous())
        activateWindow();
}

void ApplicationWindow::hideEvent(QHideEvent *event)
{
    Window::hideEvent(event);
    if (m_chainedTo && !event->spontaneous() && m_chainedTo->isVisible())
        m_chainedTo->activateWindow();
}

} // namespace Touch
