// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktoplook.h"

#include "platform/locale/desktopsetting.h"
#include "platform/locale/textscale.h"
#include "platform/toolkit/theme.h"

#include <optional>

namespace Touch {

namespace {

std::optional<Theme::Variant> variantFor(uint scheme)
{
    constexpr uint preferDark = 1;
    constexpr uint preferLight = 2;
    if (scheme == preferDark)
        return Theme::Variant::Dark;
    if (scheme == preferLight)
        return Theme::Variant::Light;
    return {};
}

} // namespace

DesktopLook::DesktopLook(QObject *parent)
    : QObject(parent)
{
    const auto *scheme
        = new DesktopSetting(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), this);
    connect(scheme, &DesktopSetting::received, this,
            [](const QVariant &value) { Theme::instance().setDesktopVariant(variantFor(value.toUInt())); });
    const auto *scale = new TextScale(this);
    connect(scale, &TextScale::received, this, [](qreal factor) { Theme::instance().setTextScale(factor); });
}

DesktopLook::~DesktopLook() = default;

} // namespace Touch
