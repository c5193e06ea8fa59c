// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/countrynames_p.h"

#include <unicode/locid.h>

namespace Touch {

namespace {

constexpr QByteArrayView Prefix("qtn_country_");

bool isCountry(const QByteArray &code)
{
    for (const char *const *each = icu::Locale::getISOCountries(); *each; ++each) {
        if (code == *each)
            return true;
    }
    return false;
}

} // namespace

CountryNames::CountryNames(const QByteArray &locale)
    : m_locale(locale)
{ }

QString CountryNames::translate(const char *, const char *sourceText, const char *, int) const
{
    const QByteArray id(sourceText);
    const QByteArray code = id.mid(Prefix.size()).toUpper();
    if (!id.startsWith(Prefix) || !isCountry(code))
        return {};
    icu::UnicodeString name;
    icu::Locale("", code.constData()).getDisplayCountry(icu::Locale(m_locale.constData()), name);
    return QString(reinterpret_cast<const QChar *>(name.getBuffer()), name.length());
}

} // namespace Touch
