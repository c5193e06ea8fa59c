// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace Touch {

/**
 * The application on the session bus: owns its name, so that there is one instance, and hears when it is started again,
 * by com.astel.touch.Application or by the desktop's org.freedesktop.Application. Needs no application object.
 * Requests arrive through the event loop of the thread that registered it. Owned by the application.
 */
class ApplicationService : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationService(const QString &serviceName, QObject *parent = nullptr);
    /** Gives the name back. */
    ~ApplicationService() override;

    /** The user started the application, maybe again: brings its window to the front. */
    virtual void launch();
    virtual void launch(const QStringList &arguments);
    /** Closes the active window. */
    virtual void close();
    /** Ends the event loop. */
    virtual void exit();
    /** Starts this program a second time. */
    virtual void launchAnotherWithQProcess();
    /**
     * The name is taken: asks the instance that has it to launch, handing over the launcher's activation token, and
     * ends this process, with status 0 if it answered and 1 if it did not.
     */
    virtual void handleServiceRegistrationFailure();
    /** Registers the first of name1, name2, … that is free, for programs that may run more than once. */
    virtual void incrementAndRegister();
    /** The name on the bus; empty before it is registered. */
    virtual QString registeredName();
    virtual bool isRegistered();
    /** Takes the name; false if it is taken or there is no bus. */
    virtual bool registerService();

    /** What the bus calls launch() with arguments: it knows no overloads. */
    void launchWithArguments(const QStringList &arguments) { launch(arguments); }

    QString serviceName() const { return m_serviceName; }
    static QString objectPath(const QString &serviceName);

private:
    bool registerAs(const QString &name);

    QString m_serviceName;
    QString m_registeredName;
};

} // namespace Touch
