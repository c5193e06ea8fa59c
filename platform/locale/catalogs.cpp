// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/catalogs_p.h"

#include "platform/locale/countrynames_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTranslator>
#include <unicode/locid.h>

namespace Touch {

namespace {

constexpr QLatin1StringView Countries("countries");

QString fileOf(const QString &name, const QString &locale)
{
    const QString file = QStringLiteral("translations/%1_%2.qm").arg(name, locale);
    QString builtIn = QStringLiteral(":/") + file;
    return QFile::exists(builtIn)
        ? builtIn
        : QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("clock/") + file);
}

icu::Locale likely(const QString &name)
{
    icu::Locale locale(name.toLatin1().constData());
    UErrorCode error = U_ZERO_ERROR;
    locale.addLikelySubtags(error);
    return locale;
}

QString joined(const char *language, const char *part)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(language), QLatin1String(part));
}

// From the source language up to the region.
QStringList fallbacks(const QByteArray &name)
{
    icu::Locale locale(name.constData());
    const icu::Locale full = likely(QString::fromLatin1(name));
    const QString written = joined(full.getLanguage(), full.getScript());
    QStringList names{QStringLiteral("en"), QString::fromLatin1(locale.getLanguage()), written};
    // Where most who write it so live: Portugal reads Brazil's texts rather than English ones, Hong Kong Taiwan's.
    const QString usual = joined(full.getLanguage(), likely(written).getCountry());
    if (qstrcmp(likely(usual).getScript(), full.getScript()) == 0)
        names << usual;
    QStringList parts;
    for (const char *part : {locale.getLanguage(), locale.getScript(), locale.getCountry()}) {
        if (*part)
            parts << QString::fromLatin1(part);
    }
    names << parts.join(u'_');
    names.removeDuplicates();
    return names;
}

void install(std::vector<std::unique_ptr<QTranslator>> &shown, std::unique_ptr<QTranslator> translator)
{
    if (QCoreApplication::installTranslator(translator.get()))
        shown.push_back(std::move(translator));
}

} // namespace

Catalogs &Catalogs::instance()
{
    // Never destroyed: the application object, which uses the translators, has no fixed place in the order of
    // ends.
    static auto *catalogs = new Catalogs;
    return *catalogs;
}

Catalogs::~Catalogs() = default;

QStringList Catalogs::files(const QString &name, const QByteArray &locale)
{
    QStringList found;
    for (const QString &fallback : fallbacks(locale)) {
        const QString file = fileOf(name, fallback);
        if (!file.isEmpty())
            found << file;
    }
    return found;
}

bool Catalogs::exists(const QString &name, const QByteArray &locale)
{
    return name == Countries || !files(name, locale).isEmpty();
}

void Catalogs::show(const QStringList &names, const QByteArray &locale)
{
    if (m_locale != locale)
        m_shown.clear();
    m_locale = locale;
    for (const QString &name : names) {
        auto &translators = m_shown[name];
        if (!translators.empty())
            continue;
        if (name == Countries)
            install(translators, std::make_unique<CountryNames>(locale));
        for (const QString &file : files(name, locale)) {
            auto translator = std::make_unique<QTranslator>();
            if (translator->load(file))
                install(translators, std::move(translator));
        }
    }
}

} // namespace Touch
