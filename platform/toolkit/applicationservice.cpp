// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationservice.h"

#include "applicationadaptor.h"
#include "platform/toolkit/desktopactivation_p.h"
#include "platform/toolkit/window.h"

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QLoggingCategory>
#include <QProcess>

namespace Touch {

Q_LOGGING_CATEGORY(lcService, "touch.service")

namespace {

constexpr int answerTime = 5000;

/**
 * A connection of its own: the shared one must not be made before the application object, and a second instance has
 * to end before that costly object is made.
 */
QDBusConnection ownBus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("touch-application"));
}

void bringToFront(Window *window)
{
    if (!window)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

ApplicationService::ApplicationService(const QString &serviceName, QObject *parent)
    : QObject(parent)
    , m_serviceName(serviceName)
{
    new ApplicationAdaptor(this);
    new DesktopActivation(this);
}

ApplicationService::~ApplicationService()
{
    if (m_registeredName.isEmpty())
        return;
    QDBusConnection bus = ownBus();
    bus.unregisterObject(objectPath(m_registeredName));
    bus.unregisterService(m_registeredName);
}

QString ApplicationService::objectPath(const QString &serviceName)
{
    // As launchers derive it: a path knows no hyphens.
    return QLatin1Char('/')
        + QString(serviceName).replace(QLatin1Char('.'), QLatin1Char('/')).replace(QLatin1Char('-'), QLatin1Char('_'));
}

void ApplicationService::launch()
{
    bringToFront(Window::active());
}

void ApplicationService::launch(const QStringList &)
{
    bringToFront(Window::active());
}

void ApplicationService::close()
{
    if (Window *window = Window::active())
        window->closeAtOnce();
}

void ApplicationService::exit()
{
    QCoreApplication::exit(0);
}

void ApplicationService::launchAnotherWithQProcess()
{
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), QStringList()))
        qCWarning(lcService) << "Cannot start" << QCoreApplication::applicationFilePath();
}

void ApplicationService::handleServiceRegistrationFailure()
{
    QDBusConnection bus = ownBus();
    if (!bus.isConnected()) {
        qCWarning(lcService) << "There is no session bus; going on without";
        return;
    }
    auto activate
        = QDBusMessage::createMethodCall(m_serviceName, objectPath(m_serviceName),
                                         QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    activate << DesktopActivation::platformData();
    const QDBusMessage reply = bus.call(activate, QDBus::Block, answerTime);
    const bool isAnswered = reply.type() == QDBusMessage::ReplyMessage;
    if (!isAnswered)
        qCCritical(lcService).noquote() << m_serviceName << "runs but does not answer:" << reply.errorMessage();
    // Nothing has been set up yet that would have to be taken down.
    std::fflush(nullptr);
    std::_Exit(isAnswered ? EXIT_SUCCESS : EXIT_FAILURE);
}

void ApplicationService::incrementAndRegister()
{
    constexpr int mostInstances = 1000;
    for (int i = 1; i <= mostInstances && !isRegistered(); ++i)
        registerAs(m_serviceName + QString::number(i));
}

QString ApplicationService::registeredName()
{
    return m_registeredName;
}

bool ApplicationService::isRegistered()
{
    return !m_registeredName.isEmpty();
}

bool ApplicationService::registerService()
{
    return isRegistered() || registerAs(m_serviceName);
}

bool ApplicationService::registerAs(const QString &name)
{
    QDBusConnection bus = ownBus();
    // The object first: whoever sees the name may call at once.
    if (!bus.registerObject(objectPath(name), this))
        return false;
    if (!bus.registerService(name)) {
        bus.unregisterObject(objectPath(name));
        return false;
    }
    m_registeredName = name;
    return true;
}

} // namespace Touch
