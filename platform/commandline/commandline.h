// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/result.h"

#include <QMap>
#include <QStringList>

/** An option of a command, given as "--name" or, where it takes a value, "--name VALUE" or "--name=VALUE". */
struct Option
{
    QString name;
    QString placeholder; ///< what the help calls its value; empty for a switch
    QString description;
};

/** The arguments of a command, taken apart. What starts with a minus and a digit is no option. */
class CommandLine
{
public:
    static Result<CommandLine> parse(const QStringList &arguments, const QList<Option> &options);

    bool has(const QString &option) const { return m_options.contains(option); }
    /** What was given for an option, or else the fallback. */
    QString value(const QString &option, const QString &fallback = {}) const
    {
        return m_options.value(option, fallback);
    }
    const QStringList &positionals() const { return m_positionals; }
    /** A problem if there is a positional argument. */
    Result<> withoutPositionals() const;

private:
    QMap<QString, QString> m_options;
    QStringList m_positionals;
};
