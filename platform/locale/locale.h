// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Touch {

class LocalePrivate;

/// The user's language and regional formats, on ICU. A value that can be copied; a copy follows nothing.
/// A default-constructed one holds the system's settings: the environment, the desktop's choice of 12 or 24 hours, and
/// the file Korvo/Locale.conf in the user's configuration folder (keys `language`, `region`, `timeFormat` = 12 or 24),
/// which wins over both. GUI thread only. Nothing here fails: an unknown locale falls back to its parents and in the end to
/// English.
class Locale : public QObject
{
    Q_OBJECT

public:
    enum DateType { DateNone, DateShort, DateMedium, DateLong, DateFull };
    enum TimeType { TimeNone, TimeShort, TimeMedium, TimeLong, TimeFull };
    /// Default is the one that is usual in the locale, for instance the Buddhist one in Thailand.
    enum CalendarType { DefaultCalendar, GregorianCalendar };
    enum TimeFormat24h { LocaleDefault, TwelveHour, TwentyFourHour };
    enum TimeField { HourField, MinuteField };
    /// Times, dates and calendars follow TimeCategory, texts and writing direction MessageCategory.
    enum Category { MessageCategory, TimeCategory, NumericCategory };

    /// The system's settings as they are now.
    Locale();
    /// A fixed locale for all categories, such as "de", "zh_TW" or "sr_Latn_RS"; its time format is
    /// LocaleDefault.
    explicit Locale(const QString &name);
    Locale(const Locale &other);
    Locale &operator=(const Locale &other);
    ~Locale() override;

    /// The application's locale. It follows the settings; connect to its settingsChanged() to follow it.
    static Locale &getDefault();
    /// Makes the application's locale a copy of this one, shows its catalogues, and tells who follows the
    /// default.
    static void setDefault(const Locale &locale);

    QString language() const;
    QString country() const;
    /// Four letters, such as "Latn"; found from language and country where the name has none.
    QString script() const;
    /// The name the category is formatted with, such as "de_DE".
    QString categoryName(Category category) const;
    /// Two letters; found from the language where the name has none.
    QString categoryCountry(Category category) const;
    /// The scripts of the language, the usual one first: "Latn"; "Kana", "Hira", "Hani".
    QStringList localeScripts() const;
    Qt::LayoutDirection textDirection() const;
    /// The direction of the first letter that has one; left to right if none has.
    static Qt::LayoutDirection directionForText(const QString &text);

    /// The user's choice.
    TimeFormat24h timeFormat24h() const;
    void setTimeFormat24h(TimeFormat24h format);
    /// What is usual in the locale; never LocaleDefault.
    TimeFormat24h defaultTimeFormat24h() const;
    /// The user's choice, or what is usual where there is none.
    bool isTwelveHour() const;

    /// The ICU pattern that formatDateTime() uses. The half of the day is always the letter a. Times of Iran
    /// start with a right-to-left mark: digits and colons have no direction of their own to be laid out by.
    QString icuFormatString(DateType date, TimeType time, CalendarType calendar = DefaultCalendar) const;
    /// The locale's own arrangement of these ICU fields, for instance "EEEE d MMMM" of "MMMMEEEEd".
    QString icuFormatString(const QString &fields) const;
    /// The date-time's own fields, in whatever zone they are. Empty if it is not valid.
    QString formatDateTime(const QDateTime &dateTime, DateType date = DateLong, TimeType time = TimeLong,
                           CalendarType calendar = DefaultCalendar) const;
    /// Format directives: %H %I %M %S %p, %d %e %j %m %y %Y, %a %A %b %B, %R %T, %%; others stay as they are.
    QString formatDateTime(const QDateTime &dateTime, const QString &format) const;
    QString formatDateTimeICU(const QDateTime &dateTime, const QString &pattern) const;
    /// With the locale's digits and grouping.
    QString formatNumber(qlonglong number) const;
    /// As short as the language has it: "5 min".
    QString formatMinutes(int minutes) const;
    /// What the language calls it, in the form of a label: "hour".
    QString timeFieldName(TimeField field) const;
    QString toUpper(const QString &text) const;

    /// Adds the catalogues `<name>_<locale>.qm` from `:/translations`, else from `clock/translations` in the
    /// data folders: the region's before the language's before the English ones, a text missing in one comes
    /// from the next. "countries" has the names of all countries without a file, as `qtn_country_<code>`. Shown
    /// while this is, or once it becomes, the default; the digits of `%L1` and `%Ln` are this locale's then. Needs
    /// the application object. False: none found.
    bool installTrCatalog(const QString &name);

    /// Follows the system's settings from now on; a locale with a fixed name follows the time format alone.
    /// Needs the application object.
    void connectSettings();

Q_SIGNALS:
    void settingsChanged();

private:
    void applySystemSettings();
    void showCatalogs() const;

    std::unique_ptr<LocalePrivate> d;
};

} // namespace Touch
