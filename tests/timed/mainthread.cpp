// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/mainthread.h"

#include <QFile>

double mainThreadWork(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/task/%1/schedstat").arg(process));
    const bool opened = file.open(QIODevice::ReadOnly);
    return opened ? file.readAll().split(' ').value(0).toDouble() / 1e6 : 0;
}
