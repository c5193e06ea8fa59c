// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"

#include "platform/locale/catalogs_p.h"
#include "platform/locale/icu_p.h"
#include "platform/locale/systemsettings_p.h"

#include <QLocale>
#include <unicode/locid.h>
#include <unicode/uscript.h>

namespace Touch {

class LocalePrivate
{
public:
    icu::Locale icuLocale(Locale::Category category) const { return icu::Locale(settings.names[category]); }
    icu::Locale likelyLocale(Locale::Category category) const;

    LocaleSettings settings;
    bool hasFixedName = false;
    QStringList catalogs;
};

icu::Locale LocalePrivate::likelyLocale(Locale::Category category) const
{
    icu::Locale locale = icuLocale(category);
    UErrorCode error = U_ZERO_ERROR;
    locale.addLikelySubtags(error);
    return locale;
}

namespace {

// The letters are POSIX's.
const char16_t *icuField(QChar directive)
{
    static const std::pair<char16_t, const char16_t *> fields[]
        = {{u'H', u"HH"},   {u'I', u"hh"},  {u'M', u"mm"},   {u'S', u"ss"},    {u'p', u"a"},       {u'd', u"dd"},
           {u'e', u"d"},    {u'j', u"DDD"}, {u'm', u"MM"},   {u'y', u"yy"},    {u'Y', u"y"},       {u'a', u"EEE"},
           {u'A', u"EEEE"}, {u'b', u"MMM"}, {u'B', u"MMMM"}, {u'R', u"HH:mm"}, {u'T', u"HH:mm:ss"}};
    for (const auto &[letter, field] : fields) {
        if (directive == letter)
            return field;
    }
    return nullptr;
}

} // namespace

Locale::Locale()
    : d(std::make_unique<LocalePrivate>())
{
    d->settings = SystemSettings::instance().settings();
}

Locale::Locale(const QString &name)
    : d(std::make_unique<LocalePrivate>())
{
    d->settings.names.fill(icuLocaleName(name.toLatin1()));
    d->hasFixedName = true;
}

Locale::Locale(const Locale &other)
    : QObject()
    , d(std::make_unique<LocalePrivate>(*other.d))
{ }

Locale &Locale::operator=(const Locale &other)
{
    *d = *other.d;
    return *this;
}

Locale::~Locale() = default;

Locale &Locale::getDefault()
{
    // Never destroyed: widgets may ask for it until the very end of the process.
    static auto *locale = new Locale;
    locale->connectSettings();
    return *locale;
}

void Locale::setDefault(const Locale &locale)
{
    Locale &current = getDefault();
    if (&locale == &current)
        return;
    QStringList catalogs = current.d->catalogs + locale.d->catalogs;
    catalogs.removeDuplicates();
    const bool changes = current.d->settings != locale.d->settings;
    current = locale;
    current.d->catalogs = catalogs;
    current.showCatalogs();
    if (changes)
        Q_EMIT current.settingsChanged();
}

QString Locale::language() const
{
    return QString::fromLatin1(d->icuLocale(MessageCategory).getLanguage());
}

QString Locale::country() const
{
    return categoryCountry(MessageCategory);
}

QString Locale::script() const
{
    return QString::fromLatin1(d->likelyLocale(MessageCategory).getScript());
}

QString Locale::categoryName(Category category) const
{
    return QString::fromLatin1(d->settings.names[category]);
}

QString Locale::categoryCountry(Category category) const
{
    return QString::fromLatin1(d->likelyLocale(category).getCountry());
}

QStringList Locale::localeScripts() const
{
    std::array<UScriptCode, 8> codes;
    UErrorCode error = U_ZERO_ERROR;
    const int count
        = uscript_getCode(d->settings.names[MessageCategory].constData(), codes.data(), int(codes.size()), &error);
    QStringList scripts;
    for (int i = 0; U_SUCCESS(error) && i < count; ++i)
        scripts << QString::fromLatin1(uscript_getShortName(codes[size_t(i)]));
    return scripts;
}

Qt::LayoutDirection Locale::textDirection() const
{
    return d->icuLocale(MessageCategory).isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

Qt::LayoutDirection Locale::directionForText(const QString &text)
{
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

Locale::TimeFormat24h Locale::timeFormat24h() const
{
    return d->settings.timeFormat;
}

void Locale::setTimeFormat24h(TimeFormat24h format)
{
    if (d->settings.timeFormat == format)
        return;
    d->settings.timeFormat = format;
    Q_EMIT settingsChanged();
}

Locale::TimeFormat24h Locale::defaultTimeFormat24h() const
{
    const QString usual = Icu::pattern(d->settings.names[TimeCategory], DateNone, TimeShort, LocaleDefault);
    return Icu::isTwelveHourPattern(usual) ? TwelveHour : TwentyFourHour;
}

bool Locale::isTwelveHour() const
{
    return (timeFormat24h() == LocaleDefault ? defaultTimeFormat24h() : timeFormat24h()) == TwelveHour;
}

QString Locale::icuFormatString(DateType date, TimeType time, CalendarType calendar) const
{
    const QByteArray name = Icu::withCalendar(d->settings.names[TimeCategory], calendar);
    const QString pattern = Icu::pattern(name, date, time, d->settings.timeFormat);
    const bool marked = date == DateNone && time != TimeNone && categoryCountry(TimeCategory) == u"IR";
    return marked ? QChar(0x200F) + pattern : pattern;
}

QString Locale::icuFormatString(const QString &fields) const
{
    return Icu::patternOfFields(d->settings.names[TimeCategory], fields);
}

QString Locale::formatDateTime(const QDateTime &dateTime, DateType date, TimeType time, CalendarType calendar) const
{
    const QByteArray name = Icu::withCalendar(d->settings.names[TimeCategory], calendar);
    return Icu::format(name, icuFormatString(date, time, calendar), dateTime);
}

QString Locale::formatDateTime(const QDateTime &dateTime, const QString &format) const
{
    QString text;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] != u'%' || i + 1 == format.size()) {
            text += format[i];
            continue;
        }
        const QChar directive = format[++i];
        if (const char16_t *field = icuField(directive))
            text += formatDateTimeICU(dateTime, QString::fromUtf16(field));
        else
            text += directive == u'%' ? QStringLiteral("%") : QString(u'%') + directive;
    }
    return text;
}

QString Locale::formatDateTimeICU(const QDateTime &dateTime, const QString &pattern) const
{
    return Icu::format(d->settings.names[TimeCategory], pattern, dateTime);
}

QString Locale::formatNumber(qlonglong number) const
{
    return Icu::format(d->settings.names[NumericCategory], number);
}

QString Locale::formatMinutes(int minutes) const
{
    return Icu::formatMinutes(d->settings.names[MessageCategory], minutes);
}

QString Locale::timeFieldName(TimeField field) const
{
    return Icu::fieldName(d->settings.names[MessageCategory], field);
}

QString Locale::toUpper(const QString &text) const
{
    icu::UnicodeString upper(reinterpret_cast<const char16_t *>(text.utf16()), int(text.size()));
    upper.toUpper(d->icuLocale(MessageCategory));
    return QString(reinterpret_cast<const QChar *>(upper.getBuffer()), upper.length());
}

bool Locale::installTrCatalog(const QString &name)
{
    if (!d->catalogs.contains(name))
        d->catalogs << name;
    if (this == &getDefault())
        showCatalogs();
    return Catalogs::exists(name, d->settings.names[MessageCategory]);
}

void Locale::showCatalogs() const
{
    // The digits of %L1 and %Ln.
    QLocale::setDefault(QLocale(categoryName(NumericCategory)));
    Catalogs::instance().show(d->catalogs, d->settings.names[MessageCategory]);
}

void Locale::connectSettings()
{
    SystemSettings &system = SystemSettings::instance();
    system.watch();
    connect(&system, &SystemSettings::changed, this, &Locale::applySystemSettings, Qt::UniqueConnection);
}

void Locale::applySystemSettings()
{
    const LocaleSettings &now = SystemSettings::instance().settings();
    const LocaleSettings before = d->settings;
    if (!d->hasFixedName)
        d->settings.names = now.names;
    d->settings.timeFormat = now.timeFormat;
    if (d->settings == before)
        return;
    if (this == &getDefault())
        showCatalogs();
    Q_EMIT settingsChanged();
}

} // namespace Touch
