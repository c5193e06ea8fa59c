// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/clockalarmplugin.h"

#include "platform/locale/locale.h"
#include "platform/ringer/clockalarm/ringwindow.h"
#include "platform/toolkit/desktoplook.h"
#include "platform/toolkit/theme.h"

#include <algorithm>
#include <QLoggingCategory>
#include <QScreen>

using Ringer::Alarm;
using Touch::Theme;

Q_LOGGING_CATEGORY(lcClockAlarm, "astel.ringer.clockalarm")

namespace {

auto withCookie(quint32 cookie)
{
    return [cookie](const Alarm &alarm) { return alarm.cookie == cookie; };
}

} // namespace

ClockAlarmPlugin::ClockAlarmPlugin()
{
    QString error;
    if (!Theme::instance().load(QStringLiteral(":/clockalarm/ring.json"), &error))
        qCWarning(lcClockAlarm, "Theme of the ring screen, ignoring: %s", qPrintable(error));
    new Touch::DesktopLook(this);
    Touch::Locale::getDefault().connectSettings();
}

// A window that is left then has been left by a display that went, which ends the program; the theme that draws it has
// gone before the plug-in does.
ClockAlarmPlugin::~ClockAlarmPlugin() = default;

void ClockAlarmPlugin::setAnswers(Ringer::Answers *answers)
{
    m_answers = answers;
}

void ClockAlarmPlugin::show(const Alarm &alarm)
{
    const auto known = std::find_if(m_alarms.begin(), m_alarms.end(), withCookie(alarm.cookie));
    if (known != m_alarms.end())
        *known = alarm;
    else
        m_alarms.append(alarm);
    m_unreported.removeAll(alarm.cookie);
    m_unreported.append(alarm.cookie);
    refresh();
}

void ClockAlarmPlugin::hide(quint32 cookie)
{
    m_unreported.removeAll(cookie);
    if (m_alarms.removeIf(withCookie(cookie)) > 0)
        refresh();
}

void ClockAlarmPlugin::refresh()
{
    if (m_alarms.isEmpty()) {
        closeWindow();
        return;
    }
    if (!m_window)
        openWindow();
    m_window->setAlarms(m_alarms);
}

void ClockAlarmPlugin::bringToFront(quint32 cookie)
{
    const auto chosen = std::find_if(m_alarms.begin(), m_alarms.end(), withCookie(cookie));
    if (chosen == m_alarms.end())
        return;
    std::rotate(m_alarms.begin(), chosen, std::next(chosen));
    refresh();
}

void ClockAlarmPlugin::openWindow()
{
    Theme::instance().followDesktop();
    m_window = new RingWindow;
    connect(m_window, &RingWindow::painted, this, &ClockAlarmPlugin::reportShown);
    connect(m_window, &RingWindow::snoozePressed, this,
            [this](quint32 cookie, int seconds) { m_answers->snooze(cookie, seconds); });
    connect(m_window, &RingWindow::stopPressed, this, [this](quint32 cookie) { m_answers->dismiss(cookie); });
    connect(m_window, &RingWindow::frontChosen, this, &ClockAlarmPlugin::bringToFront);
    // Where no window manager runs, full screen is only a wish.
    m_window->setGeometry(m_window->screen()->geometry());
    m_window->showFullScreen();
    m_window->raise();
    m_window->activateWindow();
}

// Later, because the press that ends the alarm may still be on its way through the window.
void ClockAlarmPlugin::closeWindow()
{
    if (!m_window)
        return;
    m_window->disconnect(this);
    m_window->hide();
    m_window->deleteLater();
    m_window = nullptr;
}

void ClockAlarmPlugin::reportShown()
{
    const auto cookies = std::exchange(m_unreported, {});
    for (const auto cookie : cookies)
        m_answers->shown(cookie);
}
