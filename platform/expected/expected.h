// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <utility>
#include <variant>

/** The value of what only succeeds or fails. */
struct Done
{
};

/** A value, or the error because of which there is none; the standard library has its like from C++23 on. */
template <typename Value, typename Error>
class [[nodiscard]] Expected
{
public:
    Expected(Value value)
        : m_content(std::move(value))
    { }
    Expected(Error error)
        : m_content(std::move(error))
    { }

    explicit operator bool() const { return std::holds_alternative<Value>(m_content); }
    Value &operator*() { return std::get<Value>(m_content); }
    const Value &operator*() const { return std::get<Value>(m_content); }
    Value *operator->() { return &std::get<Value>(m_content); }
    const Value *operator->() const { return &std::get<Value>(m_content); }
    const Error &error() const { return std::get<Error>(m_content); }

private:
    std::variant<Value, Error> m_content;
};
