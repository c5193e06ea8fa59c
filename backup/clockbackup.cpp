// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "backup/clockbackup.h"

#include <QDebug>

uchar ClockBackup::backupStarts()
{
    qDebug() << "backupStarts";
    return 0;
}

uchar ClockBackup::backupFinished()
{
    qDebug() << "backupFinished";
    return 0;
}

uchar ClockBackup::restoreStarts()
{
    qDebug() << "restoreStarts";
    return 0;
}

uchar ClockBackup::restoreFinished()
{
    qDebug() << "restoreFinished";
    return 0;
}
