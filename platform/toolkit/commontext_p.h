// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** The words that the toolkit itself shows: the application's translation, or English where it has none. */
namespace Touch::CommonText {

QString ok();
QString cancel();
QString done();
QString back();
QString home();
QString navigation();

} // namespace Touch::CommonText
