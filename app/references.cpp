// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"

Touch::ApplicationWindow *applicationWindow = nullptr;
MashupPage *mainPage = nullptr;
