// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationservice.h"

#include "applicationadaptor.h"
#include "applicationproxy.h"
#include "platform/toolkit/window.h"

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QLoggingCategory>
#include <QProcess>

namespace Touch {

Q_LOGGING_CATEGORY(lcService, "touch.service")

namespace {

constexpr int answerTime = 5000;

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
}

ApplicationService::~ApplicationService()
{
    if (m_registeredName.isEmpty())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterObject(objectPath(m_registeredName));
    bus.unregisterService(m_registeredName);
}

QString ApplicationService::objectPath(const QString &serviceName)
{
    return QLatin1Char('/') + QString(serviceName).replace(QLatin1Char('.'), QLatin1Char('/'));
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
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        qCWarning(lcService) << "There is no session bus; going on without";
        return;
    }
    ApplicationProxy running(m_serviceName, objectPath(m_serviceName), bus);
    running.setTimeout(answerTime);
    QDBusPendingReply<> reply = running.launch();
    reply.waitForFinished();
    if (reply.isError())
        qCCritical(lcService).noquote() << m_serviceName << "runs but does not answer:" << reply.error().message();
    // Nothing has been set up yet that would have to be taken down.
    std::fflush(nullptr);
    std::_Exit(reply.isError() ? EXIT_FAILURE : EXIT_SUCCESS);
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
    QDBusConnection bus = QDBusConnection::sessionBus();
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
