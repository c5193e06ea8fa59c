// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/systemsettings_p.h"

#include "platform/locale/desktopsetting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <unicode/uloc.h>

using namespace std::chrono_literals;

namespace Touch {

namespace {

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Korvo/Locale.conf");
}

QByteArray environmentName(const char *category)
{
    for (const char *variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return icuLocaleName(value);
    }
    return icuLocaleName("C");
}

QByteArray environmentMessagesName()
{
    const QByteArray name = environmentName("LC_MESSAGES");
    const QByteArray preferred = qgetenv("LANGUAGE").split(':').first();
    return preferred.isEmpty() || name == icuLocaleName("C") ? name : icuLocaleName(preferred);
}

QByteArray withRegion(const QByteArray &name, const QByteArray &region)
{
    char language[ULOC_LANG_CAPACITY];
    char script[ULOC_SCRIPT_CAPACITY];
    UErrorCode error = U_ZERO_ERROR;
    uloc_getLanguage(name.constData(), language, sizeof language, &error);
    uloc_getScript(name.constData(), script, sizeof script, &error);
    if (U_FAILURE(error))
        return name;
    return *script ? QByteArray(language) + '_' + script + '_' + region : QByteArray(language) + '_' + region;
}

void applyFile(LocaleSettings &settings)
{
    const QString path = settingsFile();
    if (!QFileInfo::exists(path))
        return;
    const QSettings file(path, QSettings::IniFormat);
    const QByteArray language = file.value(QStringLiteral("language")).toString().toLatin1();
    if (!language.isEmpty())
        settings.names.fill(icuLocaleName(language));
    const QByteArray region = file.value(QStringLiteral("region")).toString().toLatin1().toUpper();
    if (!region.isEmpty()) {
        for (const auto category : {Locale::TimeCategory, Locale::NumericCategory})
            settings.names[category] = withRegion(settings.names[Locale::MessageCategory], region);
    }
    const QString format = file.value(QStringLiteral("timeFormat")).toString();
    if (format == QLatin1String("12"))
        settings.timeFormat = Locale::TwelveHour;
    else if (format == QLatin1String("24"))
        settings.timeFormat = Locale::TwentyFourHour;
}

LocaleSettings readSettings(Locale::TimeFormat24h desktopFormat)
{
    LocaleSettings settings;
    settings.timeFormat = desktopFormat;
    settings.names[Locale::MessageCategory] = environmentMessagesName();
    settings.names[Locale::TimeCategory] = environmentName("LC_TIME");
    settings.names[Locale::NumericCategory] = environmentName("LC_NUMERIC");
    applyFile(settings);
    return settings;
}

} // namespace

QByteArray icuLocaleName(QByteArray posixName)
{
    const qsizetype at = posixName.indexOf('@');
    const QByteArray modifier = at < 0 ? QByteArray() : posixName.mid(at + 1);
    posixName = posixName.left(at < 0 ? posixName.size() : at);
    posixName = posixName.left(posixName.contains('.') ? posixName.indexOf('.') : posixName.size());
    posixName.replace('-', '_');
    if (posixName.isEmpty() || posixName == "C" || posixName == "POSIX")
        return "en_US_POSIX";
    if (modifier.contains('='))
        return posixName + '@' + modifier;
    const char *script = modifier == "latin" ? "_Latn"
        : modifier == "cyrillic"             ? "_Cyrl"
        : modifier == "devanagari"           ? "_Deva"
                                             : "";
    const qsizetype country = posixName.indexOf('_');
    return country < 0 ? posixName + script : posixName.left(country) + script + posixName.mid(country);
}

SystemSettings &SystemSettings::instance()
{
    // Never destroyed: the default locale, which follows it, lives until the process ends.
    static auto *settings = new SystemSettings;
    return *settings;
}

SystemSettings::SystemSettings()
    : m_settings(readSettings(Locale::LocaleDefault))
{ }

SystemSettings::~SystemSettings() = default;

void SystemSettings::watch()
{
    if (m_watcher || !QCoreApplication::instance())
        return;
    m_watcher = std::make_unique<QFileSystemWatcher>();
    m_clockFormat = std::make_unique<DesktopSetting>(QStringLiteral("org.gnome.desktop.interface"),
                                                     QStringLiteral("clock-format"));
    connect(QCoreApplication::instance(), &QObject::destroyed, this, [this] {
        m_watcher.reset();
        m_clockFormat.reset();
    });
    connect(m_clockFormat.get(), &DesktopSetting::received, this,
            [this](const QVariant &value) { takeClockFormat(value.toString()); });
    // Files are often written in several steps; the short wait lets them settle.
    auto *settled = new QTimer(m_watcher.get());
    settled->setSingleShot(true);
    settled->setInterval(30ms);
    const auto restart = [settled] { settled->start(); };
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, settled, restart);
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, settled, restart);
    connect(settled, &QTimer::timeout, this, &SystemSettings::readAgain);
    watchPaths();
}

void SystemSettings::watchPaths()
{
    const QString file = settingsFile();
    if (QFileInfo::exists(file))
        m_watcher->addPath(file);
    QFileInfo folder(QFileInfo(file).path());
    while (!folder.exists() && !folder.isRoot())
        folder.setFile(folder.path());
    if (!m_watcher->directories().contains(folder.filePath()))
        m_watcher->addPath(folder.filePath());
}

void SystemSettings::takeClockFormat(const QString &format)
{
    m_desktopFormat = format == QLatin1String("12h") ? Locale::TwelveHour
        : format == QLatin1String("24h")             ? Locale::TwentyFourHour
                                                     : Locale::LocaleDefault;
    readAgain();
}

void SystemSettings::readAgain()
{
    watchPaths();
    const LocaleSettings now = readSettings(m_desktopFormat);
    if (m_settings == now)
        return;
    m_settings = now;
    Q_EMIT changed();
}

} // namespace Touch
