// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationservice.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/componentcache.h"
#include "platform/toolkit/sheet.h"

#include <cstdio>

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
        say("launch");
        ApplicationService::launch();
    }

    void launch(const QStringList &arguments) override
    {
        say(qPrintable(arguments.join(QLatin1Char(' '))));
        if (arguments.contains(QLatin1String("quit")))
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }

    static void say(const char *text)
    {
        std::puts(text);
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char **argv)
{
    auto *application = ComponentCache::mApplication(argc, argv, QStringLiteral("probe"), new Service);
    ApplicationWindow *window = ComponentCache::mApplicationWindow();
    window->show();
    if (application->arguments().contains(QLatin1String("--sheet")))
        (new Sheet)->appear(window, SceneWindow::DestroyWhenDone);
    Service::say("running");
    const int status = application->exec();
    delete window;
    delete application;
    return status;
}
