// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/viewport_p.h"

#include <QLoggingCategory>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLWidget>

namespace Touch {

Q_LOGGING_CATEGORY(lcViewport, "touch.viewport")

namespace {

/** Without several samples for a pixel, curves have steps. */
constexpr int samples = 4;

bool hasOpenGl()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    return context.create() && context.makeCurrent(&surface);
}

bool wantsOpenGl()
{
    const QByteArray renderer = qgetenv("CLOCK_RENDERER");
    if (renderer != "opengl")
        return false;
    static const bool isThere = [] {
        const bool found = hasOpenGl();
        if (!found)
            qCWarning(lcViewport) << "CLOCK_RENDERER asks for OpenGL, but there is none; painting without, ignoring";
        return found;
    }();
    return isThere;
}

} // namespace

QWidget *makeViewport()
{
    if (!wantsOpenGl())
        return new QWidget;
    auto *viewport = new QOpenGLWidget;
    QSurfaceFormat format = viewport->format();
    format.setSamples(samples);
    viewport->setFormat(format);
    return viewport;
}

bool isPaintedByOpenGl(const QWidget *viewport)
{
    return qobject_cast<const QOpenGLWidget *>(viewport);
}

} // namespace Touch
