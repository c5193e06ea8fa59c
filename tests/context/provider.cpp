// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"

#include <QCoreApplication>

/** Publishes its process identifier for the key in its argument until it is killed. */
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const ContextPublisher publisher(application.arguments().at(1), QCoreApplication::applicationPid());
    return publisher.isPublished() ? QCoreApplication::exec() : 1;
}
