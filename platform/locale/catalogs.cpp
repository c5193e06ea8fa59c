// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/catalogs_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTranslator>
#include <unicode/locid.h>

namespace Touch {

namespace {

QString fileOf(const QString &name, const QString &locale)
{
    const QString file = QStringLiteral("translations/%1_%2.qm").arg(name, locale);
    QString builtIn = QStringLiteral(":/") + file;
    return QFile::exists(builtIn)
        ? builtIn
        : QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("clock/") + file);
}

// From the source language up to the region.
QStringList fallbacks(const QByteArray &name)
{
    icu::Locale locale(name.constData());
    QStringList names{QStringLiteral("en"), QString::fromLatin1(locale.getLanguage())};
    icu::Locale full(locale);
    UErrorCode error = U_ZERO_ERROR;
    full.addLikelySubtags(error);
    names << QStringLiteral("%1_%2").arg(QLatin1String(full.getLanguage()), QLatin1String(full.getScript()));
    QStringList parts;
    for (const char *part : {locale.getLanguage(), locale.getScript(), locale.getCountry()}) {
        if (*part)
            parts << QString::fromLatin1(part);
    }
    names << parts.join(u'_');
    names.removeDuplicates();
    return names;
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

void Catalogs::show(const QStringList &names, const QByteArray &locale)
{
    if (m_locale != locale)
        m_shown.clear();
    m_locale = locale;
    for (const QString &name : names) {
        auto &translators = m_shown[name];
        if (!translators.empty())
            continue;
        for (const QString &file : files(name, locale)) {
            auto translator = std::make_unique<QTranslator>();
            if (translator->load(file) && QCoreApplication::installTranslator(translator.get()))
                translators.push_back(std::move(translator));
        }
    }
}

} // namespace Touch
