// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/stylereader_p.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

namespace Touch {

class JsonLines;

/**
 * The rules of one theme or of several merged ones. Class rules are kept under ":" and the class name.
 * Reading checks everything first: a file with an error changes nothing.
 */
class ThemeFile
{
public:
    /** Merges a file's text into what is there; on failure the error names the file, the line and the key. */
    [[nodiscard]] bool merge(const QString &fileName, const QByteArray &text, QString *error);

    const QHash<QString, QJsonObject> &rules() const { return m_rules; }
    const Palette &palette(bool dark) const { return dark ? m_dark : m_light; }

private:
    struct Problem
    {
        QStringList path; ///< of keys, from the outside in
        QString text;     ///< empty if there is none
    };

    bool mergeText(const QByteArray &text, QString *error);
    Problem readRoot(const QJsonObject &root, const JsonLines &lines);
    Problem readPalettes(const QJsonObject &palettes);
    Problem readColors(const QString &variant, const QJsonObject &colors);
    Problem readRules(const QString &section, const QJsonObject &rules);
    Problem checkRule(const QStringList &path, const QJsonObject &rule) const;

    QHash<QString, QJsonObject> m_rules;
    Palette m_dark;
    Palette m_light;
};

} // namespace Touch
