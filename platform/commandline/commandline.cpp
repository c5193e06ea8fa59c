// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/commandline/commandline.h"

#include <algorithm>

namespace {

bool isOption(const QString &argument)
{
    return argument.size() > 1 && argument.startsWith('-') && !argument.at(1).isDigit();
}

} // namespace

Result<CommandLine> CommandLine::parse(const QStringList &arguments, const QList<Option> &options)
{
    CommandLine result;
    for (auto argument = arguments.cbegin(); argument != arguments.cend(); ++argument) {
        if (*argument == "--") {
            result.m_positionals.append(QStringList(argument + 1, arguments.cend()));
            break;
        }
        if (!isOption(*argument)) {
            result.m_positionals.append(*argument);
            continue;
        }
        const QString text = argument->section('=', 0, 0);
        const auto option = std::find_if(options.cbegin(), options.cend(),
                                         [&](const Option &known) { return "--" + known.name == text; });
        if (option == options.cend())
            return wrongUsage(QStringLiteral("unknown option \"%1\"").arg(text));
        if (result.has(option->name))
            return wrongUsage(QStringLiteral("%1 is given twice").arg(text));
        const bool hasValue = argument->contains('=');
        if (option->placeholder.isEmpty() && hasValue)
            return wrongUsage(QStringLiteral("%1 takes no value").arg(text));
        QString value = argument->section('=', 1);
        if (!option->placeholder.isEmpty() && !hasValue) {
            if (++argument == arguments.cend())
                return wrongUsage(QStringLiteral("%1 needs a value, %2").arg(text, option->placeholder));
            value = *argument;
        }
        result.m_options.insert(option->name, value);
    }
    return result;
}

Result<> CommandLine::withoutPositionals() const
{
    if (!m_positionals.isEmpty())
        return wrongUsage(QStringLiteral("\"%1\" is one argument too many").arg(m_positionals.first()));
    return Done();
}
