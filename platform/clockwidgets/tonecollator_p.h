// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCollator>

/// The order in which names of tones and files are listed: that of the user's language, "2" before "10".
QCollator toneCollator();
