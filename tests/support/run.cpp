// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/run.h"

#include "tests/support/places.h"

#include <QProcess>
#include <QTest>

namespace Support {

namespace {

constexpr int Patience = 60000; // milliseconds

} // namespace

Run run(const QString &program, const QStringList &arguments, const QStringList &environment)
{
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + environment);
    process.start(Places::program(program), arguments);
    const auto isOver = [&] { return process.state() == QProcess::NotRunning; };
    const bool ended = QTest::qWaitFor(isOver, Patience) && process.exitStatus() == QProcess::NormalExit;
    const Run run{ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                  QString::fromUtf8(process.readAllStandardError())};
    // What a test that fails because of it shows is often the exit code alone.
    if (run.exitCode != 0)
        qInfo().noquote() << program << arguments << "ended with" << run.exitCode << run.errors;
    return run;
}

} // namespace Support
