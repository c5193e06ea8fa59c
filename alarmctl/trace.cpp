// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/trace.h"

#include <cstdio>

namespace {

QtMessageHandler defaultHandler = nullptr;
QString reason;

void handle(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    static const bool shown = qEnvironmentVariableIsSet("CLOCK_DEBUG");
    const QString mark = QStringLiteral("Reason : \"");
    if (const qsizetype start = line.indexOf(mark); line.startsWith(QLatin1String("Failed to")) && start >= 0) {
        reason = line.mid(start + mark.size()).chopped(1);
        reason.replace(QLatin1String("\\\""), QLatin1String("\""));
    }
    if (shown || type == QtCriticalMsg || type == QtFatalMsg)
        defaultHandler(type, context, line);
}

} // namespace

void Trace::install()
{
    defaultHandler = qInstallMessageHandler(handle);
}

QString Trace::lastReason()
{
    return reason;
}
