// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <utility>
#include <variant>

namespace Astel::Timed {

/** Why something was not done: the name of a bus error and a text for people. */
struct Error
{
    QString name;
    QString text;
};

struct Done
{
};

/** What a function that can fail answers: a value or the error. */
template <typename T = Done>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_content(std::move(value))
    { }
    Result(Error error)
        : m_content(std::move(error))
    { }

    explicit operator bool() const { return std::holds_alternative<T>(m_content); }
    T &operator*() { return std::get<T>(m_content); }
    const T &operator*() const { return std::get<T>(m_content); }
    T *operator->() { return &std::get<T>(m_content); }
    const Error &error() const { return std::get<Error>(m_content); }

private:
    std::variant<T, Error> m_content;
};

} // namespace Astel::Timed
