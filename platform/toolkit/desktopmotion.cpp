// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktopmotion_p.h"

#include "platform/locale/desktopsetting.h"

namespace Touch {

DesktopMotion::DesktopMotion(QObject *parent)
    : QObject(parent)
{
    const auto *reduced
        = new DesktopSetting(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("reduced-motion"), this);
    connect(reduced, &DesktopSetting::received, this,
            [this](const QVariant &value) { m_wantsLess = value.toUInt() == 1; });
    const auto *animations
        = new DesktopSetting(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("enable-animations"), this);
    connect(animations, &DesktopSetting::received, this,
            [this](const QVariant &value) { m_wantsNone = !value.toBool(); });
}

DesktopMotion::~DesktopMotion() = default;

} // namespace Touch
