// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/window.h"

#include <QPointer>

namespace Touch {

class ApplicationPage;

/**
 * The window of an application: it bears the title of its current page. One that is chained to another lies over it in
 * the same place and blocks it; it shows itself with its first scene window and closes back with its last.
 */
class ApplicationWindow : public Window
{
    Q_OBJECT

public:
    explicit ApplicationWindow(QWidget *parent = nullptr);
    ~ApplicationWindow() override;

    /** The topmost page, or null. */
    ApplicationPage *currentPage() const;

    /** Says to what the next window that is made will be chained: a window's winId() and its page's title. */
    static void pushChainingData(WId windowId, const QString &pageTitle);
    /** The window that this one was chained to; null if there is none, or no longer. */
    Window *chainedTo() const { return m_chainedTo; }
    /** The title of the page that this one was opened from. */
    QString chainedTitle() const { return m_chainedTitle; }

protected:
    bool closesInsteadOfLast() const override { return !m_chainedTo; }
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void followStack();
    void followCurrentPage();
    void takeChainingData();
    void closeIfEmpty();

    QMetaObject::Connection m_titleConnection;
    QPointer<Window> m_chainedTo;
    QString m_chainedTitle;
};

} // namespace Touch
