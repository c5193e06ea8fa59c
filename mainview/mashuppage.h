// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wallclock.h"
#include "platform/toolkit/applicationpage.h"

class AlarmsWidget;
class WorldClock;

namespace Astel::Timed {
class Interface;
}

namespace Touch {
class Layout;
class PannableViewport;
class Separator;
} // namespace Touch

/**
 * The application's one page: the clock face above the alarms, or beside them in landscape. Start-up makes it and
 * deletes it before the window. GUI thread. Without the daemon's settings-changed signal it works on, and the alarms
 * are then not read again when the time settings change.
 */
class MashupPage : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    MashupPage();
    ~MashupPage() override;

    void createContent() override;
    /** Reads the alarms again; the content must have been created. */
    void resetContent();

public slots:
    void timeChanged(const Astel::Timed::WallClock::Info &info, bool timechanged);

private:
    void installCatalogues();
    Touch::PannableViewport *createAlarmList();
    Touch::Separator *createDivider();
    void arrange(Touch::Layout *layout, Touch::PannableViewport *viewport);
    void followDaemonSettings();
    void fitClockFace();

    WorldClock *m_clockFace = nullptr;
    AlarmsWidget *m_alarmList = nullptr;
    Touch::Separator *m_dropShadow = nullptr;
    Astel::Timed::Interface *m_timed = nullptr;
};
