// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QJsonDocument>
#include <QStringList>

/** What a run of the real program left behind. */
struct Run
{
    int exitCode = -1; ///< -1: it crashed, or did not end
    QString output;
    QString errors;

    QStringList lines() const { return output.split('\n', Qt::SkipEmptyParts); }
    QStringList errorLines() const { return errors.split('\n', Qt::SkipEmptyParts); }
    QJsonDocument json() const { return QJsonDocument::fromJson(output.toUtf8()); }
};

/** Where the program lies. */
QString alarmctlPath();
/** Runs the program to its end; "environment" adds "NAME=value". */
Run alarmctl(const QStringList &arguments, const QStringList &environment = {});
/** The same for arguments without blanks in them. */
Run alarmctl(const QByteArray &arguments);
