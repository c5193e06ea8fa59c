// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/answersfirst.h"

#include <dlfcn.h>
#include <QDBusPendingCallWatcher>

#define WATCHER "_ZN23QDBusPendingCallWatcherC1ERK16QDBusPendingCallP7QObject"

namespace {

bool isWanted = false;

} // namespace

// The program's own symbols go before those of the libraries: this is called in place of the constructor.
extern "C" void makeWatcher(void *self, QDBusPendingCall &call, QObject *parent) __asm__(WATCHER);

void makeWatcher(void *self, QDBusPendingCall &call, QObject *parent)
{
    static const auto make = reinterpret_cast<decltype(&makeWatcher)>(dlsym(RTLD_NEXT, WATCHER));
    if (isWanted)
        call.waitForFinished();
    make(self, call, parent);
}

namespace Support {

AnswersFirst::AnswersFirst()
{
    isWanted = true;
}

AnswersFirst::~AnswersFirst()
{
    isWanted = false;
}

} // namespace Support
