// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLatin1StringView>

#include <array>

/**
 * Names that the folders of the application share: the preferences with their defaults, the files of the sound
 * profile, and what other services call things. Each user of a preference opens its own QSettings(Organisation,
 * Application) and syncs after it has written.
 */
namespace Settings {

// The store of the preferences.
inline constexpr QLatin1StringView Organisation("Korvo");
inline constexpr QLatin1StringView Application("Clock");

// Preferences.
inline constexpr QLatin1StringView DefaultAlarmTimeKey("Clock/DefaultAlarmTime"); ///< a QTime with seconds 0
inline constexpr QLatin1StringView DefaultAlarmTime("08:00:00");
inline constexpr QLatin1StringView SnoozeTimeKey("Clock/SnoozeTime");   ///< minutes; one of SnoozeChoices
inline constexpr QLatin1StringView DefaultToneKey("Clock/DefaultTone"); ///< absolute path

/** The snooze times that can be chosen, in minutes and ascending; the place of each is that in the list of choices. */
inline constexpr std::array<int, 5> SnoozeChoices{5, 10, 15, 20, 30};

// What an alarm starts with where no preference says otherwise.
inline constexpr int DefaultSnooze = 10; ///< minutes
inline constexpr QLatin1StringView BuiltInTone("/usr/share/sounds/ring-tones/Clock alert 1.aac");

// Names kept for what is not stored: the page always shows the clock face and the alarms together.
inline constexpr QLatin1StringView ClockType("analog");
inline constexpr QLatin1StringView ClockTypeKey("/apps/clock/clocktype");
inline constexpr QLatin1StringView LastVisitedTabKey("Clock/LastVisitedTab");
inline constexpr QLatin1StringView ClockTab("ClockTab");
inline constexpr QLatin1StringView AlarmTab("AlarmTab");

// The sound profile, which names the system's alert tone; the customisation wins over the vendor's file.
inline constexpr QLatin1StringView CustomProfile("/etc/profiled/97.custom.ini");
inline constexpr QLatin1StringView VendorProfile("/etc/profiled/93.korvo.ini");
inline constexpr QLatin1StringView ProfileToneKey("fallback/clock.alert.tone");
/** What the tone chooser calls the setting of the alert tone. */
inline constexpr QLatin1StringView AlertToneSetting("clock.alert.tone");

/** The context property that holds the next trigger of every alarm. */
inline constexpr QLatin1StringView TriggerProperty("Alarm.Trigger");

} // namespace Settings
