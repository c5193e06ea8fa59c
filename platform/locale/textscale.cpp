// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/textscale.h"

#include "platform/locale/desktopsetting.h"

namespace Touch {

namespace {

constexpr qreal largestFactor = 2;
/** Text of this size, and smaller, takes the whole factor. What larger text gains falls to nothing at five times it. */
constexpr qreal fullyScaledSize = 20;

qreal gain(qreal pixelSize)
{
    return qMax(0.0, qMin(pixelSize, fullyScaledSize - (pixelSize - fullyScaledSize) / 4));
}

} // namespace

TextScale::TextScale(QObject *parent)
    : QObject(parent)
{
    const auto *setting = new DesktopSetting(QStringLiteral("org.gnome.desktop.interface"),
                                             QStringLiteral("text-scaling-factor"), this);
    connect(setting, &DesktopSetting::received, this,
            [this](const QVariant &value) { Q_EMIT received(bounded(value.toDouble())); });
}

TextScale::~TextScale() = default;

qreal TextScale::bounded(qreal factor)
{
    bool isGiven = false;
    const qreal given = qEnvironmentVariable("CLOCK_TEXT_SCALE").toDouble(&isGiven);
    return qBound(1.0, isGiven ? given : factor, largestFactor);
}

int TextScale::pixelSize(int designed, qreal factor)
{
    return designed + qRound(gain(designed) * (factor - 1));
}

} // namespace Touch
