// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "tests/support/run.h"

using Support::Run;

/** Where the program lies. */
QString alarmctlPath();
/** Runs the program to its end; "environment" adds "NAME=value". */
Run alarmctl(const QStringList &arguments, const QStringList &environment = {});
/** The same for arguments without blanks in them. */
Run alarmctl(const QByteArray &arguments);
