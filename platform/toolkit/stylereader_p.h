// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QJsonValue>
#include <QString>

namespace Touch {

struct Style;

/** The named colours of one theme variant. */
using Palette = QHash<QString, QColor>;

/** "#RRGGBB", "#AARRGGBB" or a palette name, each with an optional strength ("accent 12%"); invalid if it is
 * none. */
QColor readColor(const QString &text, const Palette &palette);

enum class StyleProblem { None, UnknownProperty, WrongType, BadNumber, UnknownColor, UnknownWord };

/** Sets the one property of a style that a theme rule names. */
[[nodiscard]] StyleProblem applyProperty(Style &style, const QString &property, const QJsonValue &value,
                                         const Palette &palette);

} // namespace Touch
