// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationservice.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/componentcache.h"
#include "platform/toolkit/sheet.h"

#include <cstdio>
#include <QAction>
#include <QGuiApplication>

using namespace Touch;

namespace {

/** Says aloud what it is asked to do. */
class Service : public ApplicationService
{
public:
    Service()
        : ApplicationService(QStringLiteral("com.astel.touch.Probe"))
    { }

    void launch() override
    {
        say("launch" + qgetenv("XDG_ACTIVATION_TOKEN") + qgetenv("DESKTOP_STARTUP_ID"));
        ApplicationService::launch();
    }

    void launch(const QStringList &arguments) override
    {
        say(arguments.join(QLatin1Char(' ')).toUtf8());
        if (arguments.contains(QLatin1String("again")))
            launchAnotherWithQProcess();
        if (arguments.contains(QLatin1String("quit")))
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }

    static void say(const QByteArray &text)
    {
        std::puts(text.constData());
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    auto *application = ComponentCache::mApplication(argc, argv, QStringLiteral("probe"), new Service);
    ApplicationWindow *window = ComponentCache::mApplicationWindow();
    ApplicationPage page;
    QAction wave;
    wave.setObjectName(QStringLiteral("wave"));
    QObject::connect(&wave, &QAction::triggered, [] { Service::say("wave"); });
    page.addAction(&wave);
    QAction identify;
    identify.setObjectName(QStringLiteral("identify"));
    QObject::connect(&identify, &QAction::triggered, [] { Service::say(QGuiApplication::desktopFileName().toUtf8()); });
    page.addAction(&identify);
    page.appear(window);
    window->show();
    if (application->arguments().contains(QLatin1String("--sheet")))
        (new Sheet)->appear(window, SceneWindow::DestroyWhenDone);
    Service::say("running");
    const int status = application->exec();
    delete window;
    delete application;
    return status;
}
