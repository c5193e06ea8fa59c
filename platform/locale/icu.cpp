// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/icu_p.h"

#include <memory>
#include <QTimeZone>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>
#include <unordered_map>

namespace Touch::Icu {

namespace {

// A program uses a dozen; the bound is for one that goes through all locales.
constexpr size_t CacheLimit = 64;

template <typename T>
using Cache = std::unordered_map<std::string, std::unique_ptr<T>>;

template <typename T, typename Make>
T *cached(Cache<T> &cache, const QByteArray &key, Make make)
{
    const auto known = cache.find(key.toStdString());
    if (known != cache.end())
        return known->second.get();
    if (cache.size() >= CacheLimit)
        cache.clear();
    return cache.emplace(key.toStdString(), make()).first->second.get();
}

QString fromIcu(const icu::UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

icu::UnicodeString toIcu(const QString &text)
{
    return icu::UnicodeString(reinterpret_cast<const char16_t *>(text.utf16()), int(text.size()));
}

icu::DateFormat::EStyle style(int type)
{
    return type == 0 ? icu::DateFormat::kNone : icu::DateFormat::EStyle(4 - type);
}

icu::UnicodeString ownPattern(const icu::Locale &locale, Locale::DateType date, Locale::TimeType time)
{
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(style(date), style(time), locale));
    icu::UnicodeString pattern;
    if (const auto *simple = dynamic_cast<icu::SimpleDateFormat *>(format.get()))
        simple->toPattern(pattern);
    return pattern;
}

// Only the letters outside quotes are fields.
template <typename Visit>
void forEachField(QString &pattern, Visit visit)
{
    bool quoted = false;
    for (QChar &c : pattern) {
        if (c == u'\'')
            quoted = !quoted;
        else if (!quoted)
            visit(c);
    }
}

// Some patterns say "in the early morning" (B) where the locale has plain halves of the day (a) as well.
QString withHalvesOfTheDay(QString pattern)
{
    forEachField(pattern, [](QChar &c) {
        if (c == u'B' || c == u'b')
            c = u'a';
    });
    return pattern;
}

icu::UnicodeString bestPattern(const icu::Locale &locale, const icu::UnicodeString &fields)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, error));
    return U_SUCCESS(error) ? generator->getBestPattern(fields, error) : icu::UnicodeString();
}

icu::UnicodeString timePattern(const icu::Locale &locale, Locale::TimeType time, bool twelveHour)
{
    static const char *const fields[] = {"", "m", "ms", "msz", "mszzzz"};
    return bestPattern(locale, icu::UnicodeString(twelveHour ? u"h" : u"H") + fields[time]);
}

QString makePattern(const QByteArray &name, Locale::DateType date, Locale::TimeType time, Locale::TimeFormat24h hours)
{
    const icu::Locale locale(name.constData());
    icu::UnicodeString result = ownPattern(locale, date, time);
    if (time == Locale::TimeNone || hours == Locale::LocaleDefault)
        return withHalvesOfTheDay(fromIcu(result));
    const icu::UnicodeString usual = ownPattern(locale, Locale::DateNone, time);
    const bool twelveHour = hours == Locale::TwelveHour;
    if (isTwelveHourPattern(fromIcu(usual)) != twelveHour)
        result.findAndReplace(usual, timePattern(locale, time, twelveHour));
    return withHalvesOfTheDay(fromIcu(result));
}

bool namesZone(QString pattern)
{
    bool found = false;
    forEachField(pattern, [&found](QChar c) { found = found || QStringView(u"zZOvVXx").contains(c); });
    return found;
}

std::unique_ptr<icu::TimeZone> icuZone(const QDateTime &dateTime)
{
    QByteArray id = dateTime.timeZone().id();
    if (id.startsWith("UTC+") || id.startsWith("UTC-"))
        id.replace("UTC", "GMT");
    return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(toIcu(QString::fromLatin1(id))));
}

icu::SimpleDateFormat *dateFormat(const QByteArray &locale, const QString &pattern)
{
    static Cache<icu::SimpleDateFormat> formats;
    return cached(formats, locale + '\n' + pattern.toUtf8(), [&] {
        UErrorCode error = U_ZERO_ERROR;
        auto *format = new icu::SimpleDateFormat(toIcu(pattern), icu::Locale(locale.constData()), error);
        format->setTimeZone(*icu::TimeZone::getGMT());
        return format;
    });
}

} // namespace

QByteArray withCalendar(const QByteArray &locale, Locale::CalendarType calendar)
{
    if (calendar == Locale::DefaultCalendar)
        return locale;
    icu::Locale changed(locale.constData());
    UErrorCode error = U_ZERO_ERROR;
    changed.setKeywordValue("calendar", "gregorian", error);
    return changed.getName();
}

QString pattern(const QByteArray &locale, Locale::DateType date, Locale::TimeType time, Locale::TimeFormat24h hours)
{
    if (date == Locale::DateNone && time == Locale::TimeNone)
        return {};
    static Cache<QString> patterns;
    const QByteArray key = locale + '\n' + char('0' + date) + char('0' + time) + char('0' + hours);
    return *cached(patterns, key, [&] { return new QString(makePattern(locale, date, time, hours)); });
}

QString patternOfFields(const QByteArray &locale, const QString &fields)
{
    static Cache<QString> patterns;
    return *cached(patterns, locale + '\n' + fields.toUtf8(),
                   [&] { return new QString(fromIcu(bestPattern(icu::Locale(locale.constData()), toIcu(fields)))); });
}

QString fieldName(const QByteArray &locale, Locale::TimeField field)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icu::Locale(locale.constData()), error));
    if (U_FAILURE(error))
        return {};
    return fromIcu(generator->getFieldDisplayName(field == Locale::HourField ? UDATPG_HOUR_FIELD : UDATPG_MINUTE_FIELD,
                                                  UDATPG_WIDE));
}

QStringList weekdayNames(const QByteArray &locale, int context, int width)
{
    static Cache<QStringList> lists;
    const QByteArray key = locale + '\n' + QByteArray::number(context) + '/' + QByteArray::number(width);
    return *cached(lists, key, [&] {
        UErrorCode error = U_ZERO_ERROR;
        const icu::DateFormatSymbols symbols(icu::Locale(locale.constData()), error);
        int32_t count = 0;
        const icu::UnicodeString *names = symbols.getWeekdays(count, icu::DateFormatSymbols::DtContextType(context),
                                                              icu::DateFormatSymbols::DtWidthType(width));
        auto list = std::make_unique<QStringList>();
        // ICU's list starts with an empty name.
        for (int i = 1; i < count; ++i)
            list->append(fromIcu(names[i]));
        return list;
    });
}

bool isTwelveHourPattern(const QString &pattern)
{
    bool twelveHour = false;
    QString fields = pattern;
    forEachField(fields, [&twelveHour](QChar c) { twelveHour = twelveHour || c == u'h' || c == u'K'; });
    return twelveHour;
}

QString format(const QByteArray &locale, const QString &pattern, const QDateTime &dateTime)
{
    if (!dateTime.isValid())
        return {};
    icu::UnicodeString text;
    icu::SimpleDateFormat *format = dateFormat(locale, pattern);
    if (!namesZone(pattern)) {
        // The fields as they stand: read and written in one and the same zone.
        const QDateTime fields(dateTime.date(), dateTime.time(), Qt::UTC);
        return fromIcu(format->format(UDate(fields.toMSecsSinceEpoch()), text));
    }
    const std::unique_ptr<icu::SimpleDateFormat> zoned(format->clone());
    zoned->adoptTimeZone(icuZone(dateTime).release());
    return fromIcu(zoned->format(UDate(dateTime.toMSecsSinceEpoch()), text));
}

QString format(const QByteArray &locale, qlonglong number)
{
    static Cache<icu::NumberFormat> formats;
    const icu::NumberFormat *format = cached(formats, locale, [&locale] {
        UErrorCode error = U_ZERO_ERROR;
        return icu::NumberFormat::createInstance(icu::Locale(locale.constData()), error);
    });
    icu::UnicodeString text;
    return format ? fromIcu(format->format(int64_t(number), text)) : QString::number(number);
}

QString formatMinutes(const QByteArray &locale, int minutes)
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::MeasureFormat format(icu::Locale(locale.constData()), UMEASFMT_WIDTH_SHORT, error);
    const icu::Measure measure(minutes, icu::MeasureUnit::createMinute(error), error);
    icu::UnicodeString text;
    icu::FieldPosition whole;
    format.formatMeasures(&measure, 1, text, whole, error);
    return U_SUCCESS(error) ? fromIcu(text) : QString::number(minutes);
}

} // namespace Touch::Icu
