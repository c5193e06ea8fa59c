// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmlist/alarmslistmodel.h"
#include "alarmlist/alarmswidget.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/pannableviewport.h"
#include "tests/support/privatebus.h"

#include <memory>

class AlarmListItem;

/** The alarm section in a viewport on a page of its own, in a window, with the real daemon behind it. */
class AlarmSection
{
public:
    /** Starts the daemon and shows the window, once for all tests; false if that fails. */
    [[nodiscard]] bool start();
    /** A new section on a new page, as soon as it has heard of the triggers. */
    [[nodiscard]] bool open();
    /** A new section that nobody has waited for. */
    void openAtOnce();
    /** Takes the section and every alarm away. */
    [[nodiscard]] bool close();

    AlarmsWidget *widget() const { return m_widget; }
    AlarmsListModel *model() const { return m_widget->findChild<AlarmsListModel *>(); }
    Touch::PannableViewport *viewport() const { return m_viewport; }
    Touch::ApplicationWindow *window() const { return m_window.get(); }
    Support::TimedProcess &daemon() { return m_daemon; }

    /** The texts of a column, from top to bottom. */
    QStringList column(int number) const;
    /** The cell of a row, or null while it is not there. */
    AlarmListItem *cell(int row) const;
    /** What the banner says, empty without one. */
    QString shownBanner() const;
    bool isHintShown() const;
    /** As a user does it: the cell has changed its switch already when it says so. */
    static void flip(AlarmListItem *cell);
    /** Chooses the first entry of the cell's object menu. */
    static void chooseDelete(AlarmListItem *cell);

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<Touch::ApplicationPage> m_page;
    Touch::PannableViewport *m_viewport = nullptr;
    AlarmsWidget *m_widget = nullptr;
};
