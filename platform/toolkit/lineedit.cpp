// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/lineedit_p.h"

#include <QGuiApplication>
#include <QInputMethod>

namespace Touch {

LineEdit::LineEdit(const QString &text)
    : QLineEdit(text)
{ }

LineEdit::~LineEdit() = default;

void LineEdit::setEnterKeyType(Qt::EnterKeyType type)
{
    if (m_enterKeyType == type)
        return;
    m_enterKeyType = type;
    QGuiApplication::inputMethod()->update(Qt::ImEnterKeyType);
}

QVariant LineEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImEnterKeyType ? QVariant(m_enterKeyType) : QLineEdit::inputMethodQuery(query);
}

} // namespace Touch
