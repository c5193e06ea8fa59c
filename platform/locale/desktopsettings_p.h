// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/locale/locale.h"

#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

namespace Touch {

/// The hours that the desktop's settings portal asks for. Asks without waiting: until the answer comes, and where
/// there is no portal, the choice is the locale's. GUI thread; needs the application object.
class DesktopSettings : public QObject
{
    Q_OBJECT

public:
    DesktopSettings();
    ~DesktopSettings() override;

    Locale::TimeFormat24h timeFormat() const { return m_timeFormat; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void setClockFormat(const QVariant &value);

    Locale::TimeFormat24h m_timeFormat = Locale::LocaleDefault;
};

} // namespace Touch
