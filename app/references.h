// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class MashupPage;

namespace Touch {
class ApplicationWindow;
}

// The two references that the whole program shares: empty until start-up fills them, and never cleared afterwards.
extern Touch::ApplicationWindow *applicationWindow;
extern MashupPage *mainPage;
