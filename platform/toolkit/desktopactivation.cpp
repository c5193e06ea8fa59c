// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktopactivation_p.h"

#include "platform/toolkit/applicationservice.h"
#include "platform/toolkit/scenewindow.h"
#include "platform/toolkit/window.h"

#include <QAction>
#include <QLoggingCategory>

namespace Touch {

Q_LOGGING_CATEGORY(lcActivation, "touch.activation")

namespace {

struct Token
{
    const char *key;      ///< in the platform data
    const char *variable; ///< in the environment, where a launcher puts it and the window system's client looks for it
};
constexpr Token tokens[] = {{"activation-token", "XDG_ACTIVATION_TOKEN"}, {"desktop-startup-id", "DESKTOP_STARTUP_ID"}};

void takeTokens(const QVariantMap &platformData)
{
    for (const auto &[key, variable] : tokens) {
        const QString value = platformData.value(QLatin1String(key)).toString();
        if (!value.isEmpty())
            qputenv(variable, value.toUtf8());
    }
}

QAction *actionOnTop(const QString &name)
{
    const Window *window = Window::active();
    const SceneWindow *top = window ? window->topSceneWindow() : nullptr;
    const QList<QAction *> actions = top ? top->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

} // namespace

DesktopActivation::DesktopActivation(ApplicationService *service)
    : QDBusAbstractAdaptor(service)
    , m_service(service)
{ }

DesktopActivation::~DesktopActivation() = default;

QVariantMap DesktopActivation::platformData()
{
    QVariantMap data;
    for (const auto &[key, variable] : tokens) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty())
            data.insert(QLatin1String(key), QString::fromUtf8(value));
    }
    return data;
}

void DesktopActivation::Activate(const QVariantMap &platform_data)
{
    takeTokens(platform_data);
    m_service->launch();
}

void DesktopActivation::Open(const QStringList &uris, const QVariantMap &platform_data)
{
    takeTokens(platform_data);
    m_service->launch(uris);
}

void DesktopActivation::ActivateAction(const QString &action_name, const QVariantList &,
                                       const QVariantMap &platform_data)
{
    Activate(platform_data);
    if (QAction *action = actionOnTop(action_name))
        action->trigger();
    else
        qCWarning(lcActivation).noquote() << "There is no action" << action_name;
}

} // namespace Touch
