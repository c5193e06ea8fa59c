// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/scenewindow.h"
#include "platform/toolkit/window.h"

namespace Support {

/** The topmost page, sheet, dialog or banner of a class on display in a window, or null. */
template <typename T>
T *shownIn(const Touch::Window *window)
{
    T *found = nullptr;
    const auto sceneWindows = window->sceneWindows();
    for (Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (auto *candidate = qobject_cast<T *>(sceneWindow))
            found = candidate;
    }
    return found;
}

} // namespace Support
