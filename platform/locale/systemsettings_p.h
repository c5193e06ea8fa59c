// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/locale/locale.h"

#include <array>
#include <memory>
#include <QByteArray>
#include <QObject>

class QFileSystemWatcher;

namespace Touch {

/// What the user has chosen: an ICU locale name for each category, and the time format.
struct LocaleSettings
{
    std::array<QByteArray, 3> names; // by Locale::Category
    Locale::TimeFormat24h timeFormat = Locale::LocaleDefault;

    bool operator==(const LocaleSettings &) const = default;
};

class DesktopSetting;

/// The user's locale settings: the environment, for the time format the desktop's portal, and a file that wins over
/// both. Follows the file and the portal. One for the process, on the GUI thread.
class SystemSettings : public QObject
{
    Q_OBJECT

public:
    static SystemSettings &instance();
    ~SystemSettings() override;

    const LocaleSettings &settings() const { return m_settings; }
    /// Starts watching, once there is an application object to deliver the changes.
    void watch();

Q_SIGNALS:
    void changed();

private:
    SystemSettings();
    void watchPaths();
    void takeClockFormat(const QString &format);
    void readAgain();

    LocaleSettings m_settings;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    std::unique_ptr<DesktopSetting> m_clockFormat;
    Locale::TimeFormat24h m_desktopFormat = Locale::LocaleDefault;
};

/// The ICU name of a POSIX locale name: "de_DE.UTF-8" is de_DE, "sr_RS@latin" is sr_Latn_RS, "C" is
/// en_US_POSIX.
QByteArray icuLocaleName(QByteArray posixName);

} // namespace Touch
