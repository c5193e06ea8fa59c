// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Clock {

/**
 * The alert tone that the sound profile names: the customisation's, if it names one, otherwise the vendor's, otherwise
 * the built-in one. Whether the file exists is not looked at.
 */
QString profileTone(const QString &customProfile, const QString &vendorProfile);

} // namespace Clock
