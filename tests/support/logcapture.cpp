// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/logcapture.h"

#include <QMutex>

namespace Support {

namespace {

QMutex mutex;
QList<std::pair<QtMsgType, QString>> captured;
QtMessageHandler previous = nullptr;

void capture(QtMsgType level, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker lock(&mutex);
    captured.append({level, text.trimmed()});
}

} // namespace

LogCapture::LogCapture()
{
    clear();
    previous = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previous);
}

QStringList LogCapture::lines() const
{
    const QMutexLocker lock(&mutex);
    QStringList result;
    for (const auto &[level, text] : std::as_const(captured))
        result.append(text);
    return result;
}

QStringList LogCapture::lines(QtMsgType wanted) const
{
    const QMutexLocker lock(&mutex);
    QStringList result;
    for (const auto &[level, text] : std::as_const(captured)) {
        if (level == wanted)
            result.append(text);
    }
    return result;
}

void LogCapture::clear()
{
    const QMutexLocker lock(&mutex);
    captured.clear();
}

} // namespace Support
