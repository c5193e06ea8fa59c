// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QtPlugin>

namespace Ringer {

/** What rings, as a plug-in sees it. */
struct Alarm
{
    quint32 cookie = 0;    ///< names the alarm in every call
    QString title;         ///< plain text, may be empty
    QDateTime due;         ///< UTC; shown in whatever zone and format the user has now
    QString tone;          ///< absolute path of the tone the alarm asks for, may be empty
    int snoozeSeconds = 0; ///< what a snooze lasts; 0: this alarm cannot be snoozed

    bool operator==(const Alarm &) const = default;
};

/**
 * What a plug-in tells the ringer. Implemented by the ringer, called from the main thread, also from within show().
 * A cookie that rings no more is ignored, so a plug-in need not fear a late key press.
 */
class Answers
{
public:
    virtual ~Answers() = default;

    /** The alarm can be seen; call once for each show(), as soon as it is true. */
    virtual void shown(quint32 cookie) = 0;
    /** The user wants to be woken again after so many seconds, 1 or more. */
    virtual void snooze(quint32 cookie, int seconds) = 0;
    /** The user is awake. */
    virtual void dismiss(quint32 cookie) = 0;
};

/**
 * Shows ringing alarms; the ringer itself plays the tone. The root object of a plug-in library is a QObject that
 * implements this interface and says so with Q_PLUGIN_METADATA and Q_INTERFACES. An event names the library by its
 * bare file name without ".so" in its attribute PLUGIN; the ringer looks in its plug-in folder and nowhere else.
 *
 * The ringer owns the plug-in, calls it from the main thread and keeps it loaded. An incompatible change of this
 * header changes the number in RingPlugin_iid; a plug-in of another number is refused and a plain screen rings.
 */
class RingPlugin
{
public:
    virtual ~RingPlugin() = default;

    /** Called once, before anything else; outlives the plug-in. */
    virtual void setAnswers(Answers *answers) = 0;
    /** Shows an alarm; several may be shown at a time, they come in the order in which they shall be answered. An
     *  alarm that is shown already is brought up to date. */
    virtual void show(const Alarm &alarm) = 0;
    /** Takes an alarm off the screen: answered, or over. Unknown cookies are ignored. */
    virtual void hide(quint32 cookie) = 0;
};

} // namespace Ringer

#define RingPlugin_iid "com.astel.ringer.RingPlugin/1"
Q_DECLARE_INTERFACE(Ringer::RingPlugin, RingPlugin_iid)
