// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QApplication>

namespace Touch {

class ApplicationService;

/**
 * The application: owns the service, and loads what bears its identifier, the theme ":/theme/<identifier>.json", the
 * icon of its windows ":/icons/<identifier>.svg" and the translation catalogue. What is not there is left out.
 * "--help" and "--version" as the first argument are answered, the latter with what the program has given to
 * setApplicationVersion() before, and end the process; other arguments are the program's.
 */
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv, const QString &appIdentifier, ApplicationService *service = nullptr);
    ~Application() override;

    QString identifier() const { return m_identifier; }
    ApplicationService *service() const { return m_service.get(); }

    /** It closes its windows in order to end. */
    bool isQuitting() const { return m_isQuitting; }

protected:
    bool event(QEvent *event) override;

private:
    void loadTheme();

    QString m_identifier;
    std::unique_ptr<ApplicationService> m_service;
    bool m_isQuitting = false;
};

} // namespace Touch
