// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/textedit.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"
#include "tests/support/look/shown.h"
#include "tests/support/privatebus.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/** What the tests of the editor stand on: the real daemon, a window with a page, and in it the editor. */
class EditorTest : public QObject
{
    Q_OBJECT

protected:
    /** Fails the test function it is called from if anything does not come up. */
    void startStage();
    /** The window alone, for a test that brings a daemon of its own; startStage() opens it as well. */
    void openWindow();
    /** A new editor in the window, without preferences. */
    void openPage();
    /** Takes the editor away, and every alarm. */
    void closePage();

    void load(quint32 cookie, const QTime &time = QTime(7, 5), const QString &title = "Tea", unsigned int snooze = 20);
    void pick(const QTime &time);
    QTime pickedTime() const { return QTime(m_picker->hours(), m_picker->minutes()); }
    Touch::Label *label(const QString &name) const { return Support::itemIn<Touch::Label>(m_page.get(), name); }
    /** The topmost scene window of a class that is on display, or null. */
    template <typename T>
    T *shown() const
    {
        return Support::shownIn<T>(m_window.get());
    }
    QString shownBanner() const;
    static QList<quint32> storedCookies();
    /** Writes the file of the preferences as another program does: by QSettings, this process would know of it. */
    static void writePreferences(const QByteArray &content);

    using QmAlarm = Clock::QmAlarm;
    using QmAlarmEvent = Clock::QmAlarmEvent;
    using Utility = Clock::Utility;

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QTemporaryDir m_folder;
    QString m_tone; ///< a file that exists
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<Touch::ApplicationPage> m_mainPage;
    std::unique_ptr<SettingAlarmPage> m_page;
    TimePicker *m_picker = nullptr;
    Touch::TextEdit *m_title = nullptr;
};
