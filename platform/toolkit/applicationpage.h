// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/scenewindow.h"

#include <QHash>

namespace Touch {

class PageChrome;
class PannableViewport;

/**
 * A page that fills its window. Its content is made once, when it first appears. The page pans its central widget only
 * where it is told to; mostly a part of the page pans, in a viewport on the central widget.
 */
class ApplicationPage : public SceneWindow
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)

public:
    enum Component { HomeButton = 1, EscapeButton = 2, NavigationBar = 4, AllComponents = 7 };
    enum DisplayMode { Show = 0, AutoHide = 1, Hide = 2 };
    Q_ENUM(DisplayMode)

    explicit ApplicationPage(QGraphicsItem *parent = nullptr);
    ~ApplicationPage() override;

    QString title() const { return m_title; }
    void setTitle(const QString &title);

    /** Fills the central widget; called once. Overrides run this one first. */
    virtual void createContent();
    bool isContentCreated() const { return m_isContentCreated; }

    Widget *centralWidget() const { return m_centralWidget; }

    bool isPannable() const { return m_isPannable; }
    /** Whether the central widget may be higher than the page and is panned then. */
    void setPannable(bool isPannable);

    /**
     * How the page's navigation bar is shown, and whether its buttons are in it; the mask is made of Component. One that
     * is hidden by itself slides in over the content when its edge is touched. The escape button is there where
     * something is to go back to, the home button where nothing is. Unless set, both are shown, but the bar is hidden.
     */
    void setComponentsDisplayMode(int componentMask, DisplayMode mode);
    DisplayMode componentDisplayMode(Component component) const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Pane; }

signals:
    void titleChanged(const QString &title);

protected:
    int layer() const override { return 0; }
    void aboutToAppear() override;
    QString shownText() const override { return m_title; }
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;

private:
    void arrange();
    void updateChrome();
    void makeChrome();

    QString m_title;
    bool m_isContentCreated = false;
    QHash<int, DisplayMode> m_displayModes;
    Widget *m_centralWidget = nullptr;
    bool m_isPannable = false;
    PannableViewport *m_viewport = nullptr; ///< made when the page is first pannable
    PageChrome *m_chrome = nullptr;         ///< only of a page that shows a navigation bar
};

} // namespace Touch
