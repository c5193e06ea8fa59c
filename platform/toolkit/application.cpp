// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/application.h"

#include "platform/locale/locale.h"
#include "platform/toolkit/applicationservice.h"
#include "platform/toolkit/desktoplook.h"
#include "platform/toolkit/theme.h"

#include <cstdio>
#include <cstdlib>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QLoggingCategory>

namespace Touch {

Q_LOGGING_CATEGORY(lcApplication, "touch.application")

namespace {

void sayAndEnd(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::exit(EXIT_SUCCESS);
}

void answerTo(const QByteArray &argument, const QString &identifier)
{
    if (argument == "--version")
        sayAndEnd(identifier + ' ' + QCoreApplication::applicationVersion() + '\n');
    if (argument == "--help")
        sayAndEnd("Usage: " + identifier
                  + " [OPTION]\n\nOptions:\n"
                    "  --help            show this help\n"
                    "  --version         show the version\n");
}

/** Before anything costly: whoever only asks, and a second instance, gets no further. */
int &registered(int &argc, char **argv, const QString &identifier, ApplicationService *service)
{
    if (argc > 1)
        answerTo(argv[1], identifier);
    if (service && !service->registerService())
        service->handleServiceRegistrationFailure();
    return argc;
}

} // namespace

Application::Application(int &argc, char **argv, const QString &appIdentifier, ApplicationService *service)
    : QApplication(registered(argc, argv, appIdentifier, service), argv)
    , m_identifier(appIdentifier)
    , m_service(service)
{
    setApplicationName(appIdentifier);
    // As launchers have it: a program that the bus can start is named after its name there.
    setDesktopFileName(service ? service->serviceName() : appIdentifier);
    loadTheme();
    new DesktopLook(this);
    if (const QString icon = QStringLiteral(":/icons/%1.svg").arg(appIdentifier); QFile::exists(icon))
        setWindowIcon(QIcon(icon));
    Locale &locale = Locale::getDefault();
    locale.connectSettings();
    if (!locale.installTrCatalog(appIdentifier))
        qCWarning(lcApplication).noquote() << "There are no texts for" << appIdentifier;
    setLayoutDirection(locale.textDirection());
    connect(&locale, &Locale::settingsChanged, this, [] { setLayoutDirection(Locale::getDefault().textDirection()); });
}

Application::~Application() = default;

void Application::loadTheme()
{
    const QString file = QStringLiteral(":/theme/%1.json").arg(m_identifier);
    QString error;
    if (QFile::exists(file) && !Theme::instance().load(file, &error))
        qCCritical(lcApplication).noquote() << "Cannot use the theme:" << error;
}

bool Application::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        Theme::instance().followDesktop();
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    m_isQuitting = true;
    const bool isHandled = QApplication::event(event);
    m_isQuitting = false;
    return isHandled;
}

} // namespace Touch
