// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/themefile_p.h"

#include "platform/toolkit/style.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace Touch {

namespace {

int lineAt(const QByteArray &text, qsizetype offset)
{
    return 1 + int(text.left(offset).count('\n'));
}

/** The line of a key, looked for after the key that holds it: JSON documents do not keep positions. */
int lineOf(const QByteArray &text, const QStringList &path)
{
    qsizetype at = 0;
    for (const QString &key : path) {
        const qsizetype found = text.indexOf('"' + key.toUtf8() + '"', at);
        at = found < 0 ? at : found + 1;
    }
    return lineAt(text, at);
}

bool fail(const QByteArray &text, const QStringList &path, const QString &problem, QString *error)
{
    *error = QStringLiteral("line %1: %2: %3").arg(lineOf(text, path)).arg(path.join(QLatin1Char('.')), problem);
    return false;
}

void mergeRule(QJsonObject &rule, const QJsonObject &added)
{
    for (auto it = added.begin(); it != added.end(); ++it)
        rule[it.key()] = it.value();
}

} // namespace

bool ThemeFile::merge(const QString &fileName, QString *error)
{
    QString ignored;
    QString &problem = error ? *error : ignored;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    const QByteArray text = file.readAll();
    QJsonObject root;
    ThemeFile merged = *this;
    const bool ok = merged.parse(text, &root, &problem) && merged.readPalettes(text, root, &problem)
        && merged.readRules(text, root, QStringLiteral("classes"), &problem)
        && merged.readRules(text, root, QStringLiteral("styles"), &problem);
    if (!ok) {
        problem.prepend(QFileInfo(fileName).fileName() + QStringLiteral(": "));
        return false;
    }
    *this = merged;
    return true;
}

bool ThemeFile::parse(const QByteArray &text, QJsonObject *root, QString *error) const
{
    QJsonParseError parseError;
    *root = QJsonDocument::fromJson(text, &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        *error = QStringLiteral("line %1: %2").arg(lineAt(text, parseError.offset)).arg(parseError.errorString());
        return false;
    }
    static const QStringList sections{QStringLiteral("palettes"), QStringLiteral("classes"), QStringLiteral("styles")};
    for (auto it = root->begin(); it != root->end(); ++it) {
        if (!sections.contains(it.key()) || !it.value().isObject())
            return fail(text, {it.key()}, QStringLiteral("not a section of a theme"), error);
    }
    return true;
}

bool ThemeFile::readPalettes(const QByteArray &text, const QJsonObject &root, QString *error)
{
    const QString section = QStringLiteral("palettes");
    const QJsonObject palettes = root[section].toObject();
    for (auto variant = palettes.begin(); variant != palettes.end(); ++variant) {
        const bool isDark = variant.key() == QLatin1String("dark");
        if (!isDark && variant.key() != QLatin1String("light"))
            return fail(text, {section, variant.key()}, QStringLiteral("neither light nor dark"), error);
        Palette &palette = isDark ? m_dark : m_light;
        const QJsonObject colors = variant.value().toObject();
        for (auto it = colors.begin(); it != colors.end(); ++it) {
            const QColor color = readColor(it.value().toString(), {});
            if (!color.isValid())
                return fail(text, {section, variant.key(), it.key()}, QStringLiteral("not a colour"), error);
            palette[it.key()] = color;
        }
    }
    return true;
}

bool ThemeFile::readRules(const QByteArray &text, const QJsonObject &root, const QString &section, QString *error)
{
    const QJsonObject rules = root[section].toObject();
    const QString prefix = section == QLatin1String("classes") ? QStringLiteral(":") : QString();
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        if (!it.value().isObject())
            return fail(text, {section, it.key()}, QStringLiteral("not a rule"), error);
        if (!checkRule(text, it.key(), it.value().toObject(), error))
            return false;
        mergeRule(m_rules[prefix + it.key()], it.value().toObject());
    }
    return true;
}

bool ThemeFile::checkRule(const QByteArray &text, const QString &name, const QJsonObject &rule, QString *error) const
{
    for (auto it = rule.begin(); it != rule.end(); ++it) {
        if (it.key() == QLatin1String("extends") && it.value().isString())
            continue;
        Style scratch;
        for (const bool dark : {false, true}) {
            const StyleProblem problem = applyProperty(scratch, it.key(), it.value(), palette(dark));
            if (problem == StyleProblem::UnknownProperty)
                return fail(text, {name, it.key()}, QStringLiteral("unknown property"), error);
            if (problem == StyleProblem::WrongValue)
                return fail(text, {name, it.key()}, QStringLiteral("wrong value"), error);
        }
    }
    return true;
}

} // namespace Touch
