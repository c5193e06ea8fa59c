// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/signals.h"

#include "platform/timed/logging.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <sys/signalfd.h>
#include <unistd.h>

namespace Astel::Timed {

void quitOnSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGHUP);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    const int descriptor = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, QCoreApplication::instance(), [descriptor] {
        signalfd_siginfo info{};
        if (read(descriptor, &info, sizeof info) == sizeof info)
            QCoreApplication::exit(info.ssi_signo == SIGHUP ? StartAnew : EXIT_SUCCESS);
    });
}

void startAnew(const char *program)
{
    // A signal that came meanwhile is still pending, and met by the new program.
    execl(program, program, nullptr);
    qCCritical(lcTimed, "cannot start %s anew: %s", program, std::strerror(errno));
}

} // namespace Astel::Timed
