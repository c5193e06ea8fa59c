// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

// Where the tests find what was built and what is in the source tree. Absolute paths; only this library knows them,
// so that a test compiles to the same object in every build folder.
namespace Places {

QString program(const QString &name);
QString ringerPlugin(const QString &fileName);
QString sharedData(const QString &relativePath);
QString source(const QString &relativePath);

} // namespace Places
