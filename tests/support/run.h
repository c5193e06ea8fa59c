// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QJsonDocument>
#include <QStringList>

namespace Support {

/** What a run of a real program left behind. */
struct Run
{
    int exitCode = -1; ///< -1: it crashed, or did not end
    QString output;
    QString errors;

    QStringList lines() const { return output.split('\n', Qt::SkipEmptyParts); }
    QStringList errorLines() const { return errors.split('\n', Qt::SkipEmptyParts); }
    QJsonDocument json() const { return QJsonDocument::fromJson(output.toUtf8()); }
};

/**
 * Runs a program of ours to its end; "environment" adds "NAME=value". What this process has on the bus answers
 * meanwhile.
 */
Run run(const QString &program, const QStringList &arguments, const QStringList &environment = {});

} // namespace Support
