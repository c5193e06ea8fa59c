// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/lineedit_p.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

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

void LineEdit::commit()
{
    if (m_composed.isEmpty())
        return;
    QGuiApplication::inputMethod()->commit();
    // Not every input method does so, and not every one at once.
    if (m_composed.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(m_composed);
    inputMethodEvent(&event);
    QGuiApplication::inputMethod()->reset();
}

void LineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    m_composed = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

void LineEdit::focusOutEvent(QFocusEvent *event)
{
    commit();
    QLineEdit::focusOutEvent(event);
}

QVariant LineEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImEnterKeyType ? QVariant(m_enterKeyType) : QLineEdit::inputMethodQuery(query);
}

} // namespace Touch
