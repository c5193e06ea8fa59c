// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/stylereader_p.h"

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>

namespace Touch {

/**
 * The rules of one theme or of several merged ones. Class rules are kept under ":" and the class name.
 * Reading checks everything first: a file with an error changes nothing.
 */
class ThemeFile
{
public:
    /** Merges a file into what is there; on failure the error names the file, the line and the key. */
    [[nodiscard]] bool merge(const QString &fileName, QString *error);

    const QHash<QString, QJsonObject> &rules() const { return m_rules; }
    const Palette &palette(bool dark) const { return dark ? m_dark : m_light; }

private:
    bool parse(const QByteArray &text, QJsonObject *root, QString *error) const;
    bool readPalettes(const QByteArray &text, const QJsonObject &root, QString *error);
    bool readRules(const QByteArray &text, const QJsonObject &root, const QString &section, QString *error);
    bool checkRule(const QByteArray &text, const QString &name, const QJsonObject &rule, QString *error) const;

    QHash<QString, QJsonObject> m_rules;
    Palette m_dark;
    Palette m_light;
};

} // namespace Touch
