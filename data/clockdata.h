// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/** Makes the application's texts, theme and icons known to Qt; call it before the application object is made. */
void initClockData();
