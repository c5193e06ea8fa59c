// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/stylereader_p.h"

#include "platform/toolkit/style.h"

#include <QJsonArray>

namespace Touch {

namespace {

using Setter = bool (*)(Style &, const QJsonValue &, const Palette &);

template <auto Member>
bool setNumber(Style &style, const QJsonValue &value, const Palette &)
{
    using Type = std::remove_reference_t<decltype(style.*Member)>;
    style.*Member = Type(value.toDouble());
    return value.isDouble();
}

template <QColor Style::*Member>
bool setColor(Style &style, const QJsonValue &value, const Palette &palette)
{
    style.*Member = readColor(value.toString(), palette);
    return (style.*Member).isValid() || value.toString() == QLatin1String("none");
}

template <QMarginsF Style::*Member>
bool setMargins(Style &style, const QJsonValue &value, const Palette &)
{
    const QJsonArray sides = value.toArray();
    if (sides.size() != 4)
        return false;
    style.*Member = QMarginsF(sides[0].toDouble(), sides[1].toDouble(), sides[2].toDouble(), sides[3].toDouble());
    return true;
}

template <QSizeF Style::*Member>
bool setSize(Style &style, const QJsonValue &value, const Palette &)
{
    const QJsonArray size = value.toArray();
    if (size.size() != 2)
        return false;
    style.*Member = QSizeF(size[0].toDouble(-1), size[1].toDouble(-1));
    return true;
}

bool setTabularDigits(Style &style, const QJsonValue &value, const Palette &)
{
    style.tabularDigits = value.toBool();
    return value.isBool();
}

bool setFamilies(Style &style, const QJsonValue &value, const Palette &)
{
    style.fontFamilies.clear();
    for (const QJsonValue &family : value.toArray())
        style.fontFamilies << family.toString();
    return !style.fontFamilies.isEmpty();
}

bool setAlignment(Style &style, const QJsonValue &value, const Palette &)
{
    static const QHash<QString, Qt::Alignment> names{
        {QStringLiteral("left"), Qt::AlignLeft},       {QStringLiteral("right"), Qt::AlignRight},
        {QStringLiteral("hcenter"), Qt::AlignHCenter}, {QStringLiteral("top"), Qt::AlignTop},
        {QStringLiteral("bottom"), Qt::AlignBottom},   {QStringLiteral("vcenter"), Qt::AlignVCenter},
        {QStringLiteral("center"), Qt::AlignCenter}};
    style.alignment = {};
    const QStringList words = value.toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        if (!names.contains(word))
            return false;
        style.alignment |= names[word];
    }
    return !words.isEmpty();
}

const QHash<QString, Setter> &setters()
{
    static const QHash<QString, Setter> table{
        {QStringLiteral("fontFamilies"), setFamilies},
        {QStringLiteral("pixelSize"), setNumber<&Style::pixelSize>},
        {QStringLiteral("weight"), setNumber<&Style::weight>},
        {QStringLiteral("letterSpacing"), setNumber<&Style::letterSpacing>},
        {QStringLiteral("tabularDigits"), setTabularDigits},
        {QStringLiteral("color"), setColor<&Style::color>},
        {QStringLiteral("pressedColor"), setColor<&Style::pressedColor>},
        {QStringLiteral("checkedColor"), setColor<&Style::checkedColor>},
        {QStringLiteral("disabledColor"), setColor<&Style::disabledColor>},
        {QStringLiteral("background"), setColor<&Style::background>},
        {QStringLiteral("pressedBackground"), setColor<&Style::pressedBackground>},
        {QStringLiteral("checkedBackground"), setColor<&Style::checkedBackground>},
        {QStringLiteral("disabledBackground"), setColor<&Style::disabledBackground>},
        {QStringLiteral("borderColor"), setColor<&Style::borderColor>},
        {QStringLiteral("separatorColor"), setColor<&Style::separatorColor>},
        {QStringLiteral("focusColor"), setColor<&Style::focusColor>},
        {QStringLiteral("accentColor"), setColor<&Style::accentColor>},
        {QStringLiteral("promptColor"), setColor<&Style::promptColor>},
        {QStringLiteral("borderWidth"), setNumber<&Style::borderWidth>},
        {QStringLiteral("radius"), setNumber<&Style::radius>},
        {QStringLiteral("padding"), setMargins<&Style::padding>},
        {QStringLiteral("margins"), setMargins<&Style::margins>},
        {QStringLiteral("spacing"), setNumber<&Style::spacing>},
        {QStringLiteral("minimumSize"), setSize<&Style::minimumSize>},
        {QStringLiteral("preferredSize"), setSize<&Style::preferredSize>},
        {QStringLiteral("maximumSize"), setSize<&Style::maximumSize>},
        {QStringLiteral("iconSize"), setSize<&Style::iconSize>},
        {QStringLiteral("alignment"), setAlignment},
    };
    return table;
}

} // namespace

QColor readColor(const QString &text, const Palette &palette)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty() || words.size() > 2)
        return {};
    QColor color = words[0].startsWith(QLatin1Char('#')) ? QColor(words[0]) : palette.value(words[0]);
    if (words.size() == 1 || !color.isValid())
        return color;
    bool isNumber = false;
    const double percent = QStringView(words[1]).chopped(1).toDouble(&isNumber);
    if (!isNumber || !words[1].endsWith(QLatin1Char('%')) || percent < 0 || percent > 100)
        return {};
    color.setAlphaF(float(color.alphaF() * percent / 100));
    return color;
}

StyleProblem applyProperty(Style &style, const QString &property, const QJsonValue &value, const Palette &palette)
{
    const Setter setter = setters().value(property);
    if (!setter)
        return StyleProblem::UnknownProperty;
    return setter(style, value, palette) ? StyleProblem::None : StyleProblem::WrongValue;
}

} // namespace Touch
