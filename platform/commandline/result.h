// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <variant>

/** How the program ends. */
enum class Exit { Done = 0, Failed = 1, WrongUsage = 2 };

/** Why something was not done; the text is one line for the user, empty where the output has told it. */
struct Problem
{
    Exit exit = Exit::Failed;
    QString text;
};

inline Problem failure(const QString &text)
{
    return {Exit::Failed, text};
}

inline Problem wrongUsage(const QString &text)
{
    return {Exit::WrongUsage, text};
}

struct Done
{
};

/** A value, or the reason why there is none. */
template <typename Value = Done>
class [[nodiscard]] Result
{
public:
    Result(const Value &value)
        : m_content(value)
    { }
    Result(const Problem &problem)
        : m_content(problem)
    { }

    explicit operator bool() const { return std::holds_alternative<Value>(m_content); }
    const Value &operator*() const { return std::get<Value>(m_content); }
    const Value *operator->() const { return &std::get<Value>(m_content); }
    const Problem &problem() const { return std::get<Problem>(m_content); }

private:
    std::variant<Value, Problem> m_content;
};
