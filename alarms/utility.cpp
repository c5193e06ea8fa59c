// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/utility.h"

#include "alarms/currenttime_p.h"
#include "alarms/profiletone_p.h"
#include "app/settings.h"
#include "platform/context/contextproperty.h"
#include "platform/locale/locale.h"
#include "platform/sound/profile/soundprofile.h"

#include <QDebug>

namespace Clock {

namespace {

constexpr quint64 NanosecondsOfSecond = 1000000000;
constexpr quint64 SecondsOfDay = 86400;

QString hoursAndMinutes(int seconds)
{
    const int minutes = seconds / 60;
    // A date without a change of summer time, so that every time of the day exists on it.
    QDateTime moment = currentTime();
    moment.setDate(QDate(2011, 2, 23));
    moment.setTime(QTime(minutes / 60, minutes % 60));
    return Touch::Locale::getDefault().formatDateTimeICU(moment, "HH:mm");
}

QString days(quint64 seconds)
{
    const quint64 count = (seconds + SecondsOfDay / 2) / SecondsOfDay;
    return qtTrId("qtn_cloc_about_days", int(quint32(count)));
}

} // namespace

QVariantMap Utility::s_triggers;
bool Utility::s_received = false;
ContextProperty *Utility::s_property = nullptr;

Utility *Utility::instance()
{
    static Utility *const shared = new Utility;
    return shared;
}

void Utility::subscribeToContextFramework()
{
    qDebug() << "void Clock::Utility::subscribeToContextFramework()";
    s_property = new ContextProperty(Settings::TriggerProperty, this);
    connect(s_property, &ContextProperty::valueChanged, this, &Utility::onValueChanged);
    s_property->subscribe();
}

void Utility::onValueChanged()
{
    if (s_property) {
        s_received = true;
        s_triggers = s_property->value().toMap();
    }
    emit valueChanged();
}

bool Utility::isTriggerMapReceived() const
{
    return s_received;
}

bool Utility::triggerFromContext(quint32 cookie, quint64 &trigger) const
{
    // A cookie above the signed range turns negative and is never found.
    const auto entry = s_triggers.constFind(QString::number(qint32(cookie)));
    if (entry == s_triggers.cend())
        return false;
    trigger = entry->toULongLong();
    return true;
}

bool Utility::triggerSecondsFromContext(quint32 cookie, time_t &trigger) const
{
    trigger = 0;
    quint64 nanoseconds = 0;
    if (!triggerFromContext(cookie, nanoseconds))
        return false;
    trigger = time_t(nanoseconds / NanosecondsOfSecond);
    return true;
}

bool Utility::isTriggerTimeChanged(quint32 cookie, const QTime &time) const
{
    time_t seconds = 0;
    if (!triggerSecondsFromContext(cookie, seconds))
        return false;
    const QTime trigger = QDateTime::fromSecsSinceEpoch(seconds).time();
    return trigger.hour() != time.hour() || trigger.minute() != time.minute();
}

void Utility::timeLeftForAlarmToTrigger(const time_t &alarmTime, QString &text)
{
    qDebug() << "static void Clock::Utility::timeLeftForAlarmToTrigger(const time_t&, QString&)";
    qDebug() << "alarmTime" << alarmTime;
    // The difference of two moments in signed 32 bits; what is past becomes huge, and so is told in days.
    const auto difference = qint32(quint32(alarmTime) - quint32(currentTime().toSecsSinceEpoch()));
    const auto left = quint64(qint64(difference));
    const QString amount = left < SecondsOfDay ? hoursAndMinutes(difference) : days(left);
    text = qtTrId("qtn_cloc_time_left_alarm").arg(amount);
}

QString Utility::defaultAlertTone()
{
    return profileTone(&Sound::profileValue);
}

} // namespace Clock
