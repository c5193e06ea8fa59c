// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/stylereader_p.h"

#include "platform/toolkit/style.h"

#include <QJsonArray>

namespace Touch {

namespace {

using Setter = StyleProblem (*)(Style &, const QJsonValue &, const Palette &);

/** The longest that a length of a theme may be, in logical pixels. */
constexpr double maxLength = 10000;

StyleProblem checkNumber(const QJsonValue &value, double least, double most)
{
    if (!value.isDouble())
        return StyleProblem::WrongType;
    return value.toDouble() < least || value.toDouble() > most ? StyleProblem::BadNumber : StyleProblem::None;
}

StyleProblem checkNumbers(const QJsonValue &value, int count, double least)
{
    const QJsonArray numbers = value.toArray();
    if (numbers.size() != count)
        return StyleProblem::WrongType;
    for (const QJsonValue &number : numbers) {
        const StyleProblem problem = checkNumber(number, least, maxLength);
        if (problem != StyleProblem::None)
            return problem;
    }
    return StyleProblem::None;
}

template <auto Member, int Least, int Most>
StyleProblem setNumber(Style &style, const QJsonValue &value, const Palette &)
{
    using Type = std::remove_reference_t<decltype(style.*Member)>;
    style.*Member = Type(value.toDouble());
    return checkNumber(value, Least, Most);
}

template <QColor Style::*Member>
StyleProblem setColor(Style &style, const QJsonValue &value, const Palette &palette)
{
    if (!value.isString())
        return StyleProblem::WrongType;
    style.*Member = readColor(value.toString(), palette);
    const bool isKnown = (style.*Member).isValid() || value.toString() == QLatin1String("none");
    return isKnown ? StyleProblem::None : StyleProblem::UnknownColor;
}

template <QMarginsF Style::*Member>
StyleProblem setMargins(Style &style, const QJsonValue &value, const Palette &)
{
    const QJsonArray sides = value.toArray();
    style.*Member = QMarginsF(sides[0].toDouble(), sides[1].toDouble(), sides[2].toDouble(), sides[3].toDouble());
    return checkNumbers(value, 4, 0);
}

template <QSizeF Style::*Member>
StyleProblem setSize(Style &style, const QJsonValue &value, const Palette &)
{
    const QJsonArray size = value.toArray();
    style.*Member = QSizeF(size[0].toDouble(), size[1].toDouble());
    return checkNumbers(value, 2, -1);
}

template <bool Style::*Member>
StyleProblem setFlag(Style &style, const QJsonValue &value, const Palette &)
{
    style.*Member = value.toBool();
    return value.isBool() ? StyleProblem::None : StyleProblem::WrongType;
}

StyleProblem setFamilies(Style &style, const QJsonValue &value, const Palette &)
{
    style.fontFamilies.clear();
    const QJsonArray families = value.toArray();
    for (const QJsonValue &family : families) {
        if (!family.isString())
            return StyleProblem::WrongType;
        style.fontFamilies << family.toString();
    }
    return families.isEmpty() ? StyleProblem::WrongType : StyleProblem::None;
}

StyleProblem setAlignment(Style &style, const QJsonValue &value, const Palette &)
{
    static const QHash<QString, Qt::Alignment> names{
        {QStringLiteral("left"), Qt::AlignLeft},       {QStringLiteral("right"), Qt::AlignRight},
        {QStringLiteral("hcenter"), Qt::AlignHCenter}, {QStringLiteral("top"), Qt::AlignTop},
        {QStringLiteral("bottom"), Qt::AlignBottom},   {QStringLiteral("vcenter"), Qt::AlignVCenter},
        {QStringLiteral("center"), Qt::AlignCenter}};
    if (!value.isString())
        return StyleProblem::WrongType;
    style.alignment = {};
    const QStringList words = value.toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        if (!names.contains(word))
            return StyleProblem::UnknownWord;
        style.alignment |= names[word];
    }
    return words.isEmpty() ? StyleProblem::UnknownWord : StyleProblem::None;
}

const QHash<QString, Setter> &setters()
{
    static const QHash<QString, Setter> table{
        {QStringLiteral("fontFamilies"), setFamilies},
        {QStringLiteral("pixelSize"), setNumber<&Style::pixelSize, 1, 1000>},
        {QStringLiteral("weight"), setNumber<&Style::weight, 1, 1000>},
        {QStringLiteral("letterSpacing"), setNumber<&Style::letterSpacing, -100, 100>},
        {QStringLiteral("tabularDigits"), setFlag<&Style::tabularDigits>},
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
        {QStringLiteral("borderWidth"), setNumber<&Style::borderWidth, 0, 1000>},
        {QStringLiteral("radius"), setNumber<&Style::radius, 0, 1000>},
        {QStringLiteral("padding"), setMargins<&Style::padding>},
        {QStringLiteral("margins"), setMargins<&Style::margins>},
        {QStringLiteral("spacing"), setNumber<&Style::spacing, 0, 1000>},
        {QStringLiteral("minimumSize"), setSize<&Style::minimumSize>},
        {QStringLiteral("preferredSize"), setSize<&Style::preferredSize>},
        {QStringLiteral("maximumSize"), setSize<&Style::maximumSize>},
        {QStringLiteral("iconSize"), setSize<&Style::iconSize>},
        {QStringLiteral("scalesWithText"), setFlag<&Style::scalesWithText>},
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
    return setter(style, value, palette);
}

} // namespace Touch
