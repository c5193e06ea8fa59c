// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/themefile_p.h"

#include "platform/toolkit/jsonlines_p.h"
#include "platform/toolkit/style.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace Touch {

namespace {

QString describe(StyleProblem problem, const QJsonValue &value, bool isDark)
{
    switch (problem) {
    case StyleProblem::UnknownProperty:
        return QStringLiteral("unknown property");
    case StyleProblem::WrongType:
        return QStringLiteral("wrong type of value");
    case StyleProblem::BadNumber:
        return QStringLiteral("number out of range");
    case StyleProblem::UnknownColor:
        return QStringLiteral("\"%1\" is no colour of the %2 palette")
            .arg(value.toString(), isDark ? QStringLiteral("dark") : QStringLiteral("light"));
    case StyleProblem::UnknownWord:
        return QStringLiteral("\"%1\" is no alignment").arg(value.toString());
    case StyleProblem::None:
        break;
    }
    return {};
}

void mergeRule(QJsonObject &rule, const QJsonObject &added)
{
    for (auto it = added.begin(); it != added.end(); ++it)
        rule[it.key()] = it.value();
}

} // namespace

bool ThemeFile::merge(const QString &fileName, const QByteArray &text, QString *error)
{
    QString ignored;
    QString &problem = error ? *error : ignored;
    ThemeFile merged = *this;
    if (!merged.mergeText(text, &problem)) {
        problem.prepend(QFileInfo(fileName).fileName() + QStringLiteral(": "));
        return false;
    }
    *this = merged;
    return true;
}

bool ThemeFile::mergeText(const QByteArray &text, QString *error)
{
    const QString located = QStringLiteral("line %1: %2");
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        *error = located.arg(JsonLines::lineAt(text, parseError.offset)).arg(parseError.errorString());
        return false;
    }
    if (!document.isObject()) {
        *error = located.arg(1).arg(QStringLiteral("not an object"));
        return false;
    }
    const JsonLines lines(text);
    const Problem problem = readRoot(document.object(), lines);
    if (problem.text.isEmpty())
        return true;
    const QString key = problem.path.join(QLatin1Char('.'));
    *error = located.arg(lines.lineOf(problem.path)).arg(key + QStringLiteral(": ") + problem.text);
    return false;
}

ThemeFile::Problem ThemeFile::readRoot(const QJsonObject &root, const JsonLines &lines)
{
    if (!lines.repeatedKey().isEmpty())
        return {lines.repeatedKey(), QStringLiteral("given twice")};
    // Palettes first: the rules name their colours.
    static const QStringList sections{QStringLiteral("palettes"), QStringLiteral("classes"), QStringLiteral("styles")};
    for (auto it = root.begin(); it != root.end(); ++it) {
        if (!sections.contains(it.key()) || !it.value().isObject())
            return {{it.key()}, QStringLiteral("not a section of a theme")};
    }
    Problem problem = readPalettes(root[sections[0]].toObject());
    for (int i = 1; i < sections.size() && problem.text.isEmpty(); ++i)
        problem = readRules(sections[i], root[sections[i]].toObject());
    return problem;
}

ThemeFile::Problem ThemeFile::readPalettes(const QJsonObject &palettes)
{
    for (auto it = palettes.begin(); it != palettes.end(); ++it) {
        const bool isVariant = it.key() == QLatin1String("dark") || it.key() == QLatin1String("light");
        if (!isVariant || !it.value().isObject())
            return {{QStringLiteral("palettes"), it.key()}, QStringLiteral("neither a light nor a dark palette")};
        const Problem problem = readColors(it.key(), it.value().toObject());
        if (!problem.text.isEmpty())
            return problem;
    }
    return {};
}

ThemeFile::Problem ThemeFile::readColors(const QString &variant, const QJsonObject &colors)
{
    Palette &palette = variant == QLatin1String("dark") ? m_dark : m_light;
    for (auto it = colors.begin(); it != colors.end(); ++it) {
        const QColor color = readColor(it.value().toString(), {});
        if (!color.isValid())
            return {{QStringLiteral("palettes"), variant, it.key()}, QStringLiteral("not a colour")};
        palette[it.key()] = color;
    }
    return {};
}

ThemeFile::Problem ThemeFile::readRules(const QString &section, const QJsonObject &rules)
{
    const QString prefix = section == QLatin1String("classes") ? QStringLiteral(":") : QString();
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        if (!it.value().isObject())
            return {{section, it.key()}, QStringLiteral("not a rule")};
        const Problem problem = checkRule({section, it.key()}, it.value().toObject());
        if (!problem.text.isEmpty())
            return problem;
        mergeRule(m_rules[prefix + it.key()], it.value().toObject());
    }
    return {};
}

ThemeFile::Problem ThemeFile::checkRule(const QStringList &path, const QJsonObject &rule) const
{
    for (auto it = rule.begin(); it != rule.end(); ++it) {
        if (it.key() == QLatin1String("extends")) {
            if (!it.value().isString())
                return {path + QStringList(it.key()), describe(StyleProblem::WrongType, it.value(), false)};
            continue;
        }
        Style scratch;
        for (const bool isDark : {false, true}) {
            const StyleProblem problem = applyProperty(scratch, it.key(), it.value(), palette(isDark));
            if (problem != StyleProblem::None)
                return {path + QStringList(it.key()), describe(problem, it.value(), isDark)};
        }
    }
    return {};
}

} // namespace Touch
