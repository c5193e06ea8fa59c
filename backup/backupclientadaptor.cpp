// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "backup/backupclientadaptor.h"

#include "backup/clockbackup.h"

#include <QMetaObject>

backupclientAdaptor::backupclientAdaptor(ClockBackup *participant)
    : QDBusAbstractAdaptor(participant)
{
    setAutoRelaySignals(true);
}

uchar backupclientAdaptor::backupFinished()
{
    return passOn("backupFinished");
}

uchar backupclientAdaptor::backupStarts()
{
    return passOn("backupStarts");
}

uchar backupclientAdaptor::restoreFinished()
{
    return passOn("restoreFinished");
}

uchar backupclientAdaptor::restoreStarts()
{
    return passOn("restoreStarts");
}

uchar backupclientAdaptor::passOn(const char *method)
{
    uchar answer = 0;
    QMetaObject::invokeMethod(parent(), method, Q_RETURN_ARG(uchar, answer));
    return answer;
}
