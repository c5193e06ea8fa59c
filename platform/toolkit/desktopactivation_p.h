// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QVariant>

namespace Touch {

class ApplicationService;

/**
 * What the desktop's launchers call, as org.freedesktop.Application.xml describes it; the names are that interface's.
 * Each call is a launch of the service that owns it.
 */
class DesktopActivation : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit DesktopActivation(ApplicationService *service);
    ~DesktopActivation() override;

    /** What a program that was started by a launcher hands over to the instance that runs. */
    static QVariantMap platformData();

public slots:
    void Activate(const QVariantMap &platform_data);
    void Open(const QStringList &uris, const QVariantMap &platform_data);
    void ActivateAction(const QString &action_name, const QVariantList &parameter, const QVariantMap &platform_data);

private:
    ApplicationService *m_service;
};

} // namespace Touch
