// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QWidget;

namespace Touch {

/**
 * What a window paints on: pixels in memory or, where CLOCK_RENDERER is "opengl", the graphics processor. Where that
 * cannot be had, there is one warning, and it is pixels in memory after all.
 */
QWidget *makeViewport();
/** It keeps nothing of the frame before: all of it is painted each time. */
bool isPaintedByOpenGl(const QWidget *viewport);

} // namespace Touch
