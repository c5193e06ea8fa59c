// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblelineedit_p.h"

#include "platform/toolkit/accessiblewidget_p.h"
#include "platform/toolkit/lineedit_p.h"
#include "platform/toolkit/widget.h"

#include <QTextLayout>
#include <QWindow>

namespace Touch {

AccessibleLineEdit::AccessibleLineEdit(LineEdit *edit, Widget *field)
    : QAccessibleWidget(edit, QAccessible::EditableText)
    , m_field(field)
{
    // Or Qt would name the hidden window that the line edit has as another one of the application's.
    if (QWindow *hidden = edit->windowHandle())
        hidden->setFlags(hidden->flags() | Qt::Popup);
}

AccessibleLineEdit::~AccessibleLineEdit() = default;

LineEdit *AccessibleLineEdit::edit() const
{
    return static_cast<LineEdit *>(object());
}

QAccessible::State AccessibleLineEdit::state() const
{
    QAccessible::State state;
    state.disabled = !m_field->isEnabled();
    state.invisible = !m_field->isVisible();
    state.focusable = true;
    state.focused = edit()->hasFocus();
    state.editable = !edit()->isReadOnly();
    state.readOnly = edit()->isReadOnly();
    state.selectableText = true;
    return state;
}

QString AccessibleLineEdit::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return m_field->accessibleName();
    case QAccessible::Value:
        return edit()->text();
    case QAccessible::Description:
        return edit()->placeholderText();
    default:
        return {};
    }
}

void AccessibleLineEdit::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
}

QAccessibleInterface *AccessibleLineEdit::parent() const
{
    return accessibleParentOf(m_field);
}

void *AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QStringList AccessibleLineEdit::actionNames() const
{
    return m_field->isEnabled() ? QStringList{setFocusAction()} : QStringList();
}

void AccessibleLineEdit::doAction(const QString &name)
{
    if (actionNames().contains(name))
        m_field->setFocus(Qt::OtherFocusReason);
}

void AccessibleLineEdit::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && edit()->hasSelectedText();
    *start = isThere ? edit()->selectionStart() : 0;
    *end = isThere ? edit()->selectionEnd() : 0;
}

int AccessibleLineEdit::selectionCount() const
{
    return edit()->hasSelectedText() ? 1 : 0;
}

void AccessibleLineEdit::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void AccessibleLineEdit::removeSelection(int index)
{
    if (index == 0)
        edit()->deselect();
}

void AccessibleLineEdit::setSelection(int index, int start, int end)
{
    if (index == 0)
        edit()->setSelection(start, end - start);
}

int AccessibleLineEdit::cursorPosition() const
{
    return edit()->cursorPosition();
}

void AccessibleLineEdit::setCursorPosition(int position)
{
    edit()->setCursorPosition(position);
}

QString AccessibleLineEdit::text(int start, int end) const
{
    return edit()->text().mid(start, end - start);
}

int AccessibleLineEdit::characterCount() const
{
    return int(edit()->text().length());
}

QRect AccessibleLineEdit::characterRect(int offset) const
{
    if (offset < 0 || offset >= characterCount())
        return {};
    QTextLayout layout(edit()->text(), edit()->font());
    QTextOption option;
    option.setTextDirection(edit()->layoutDirection());
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    // The cursor tells how far the text is scrolled, and where it starts.
    const qreal start = edit()->cursorPlace().center().x() - line.cursorToX(edit()->cursorPosition());
    const qreal from = line.cursorToX(offset);
    const qreal to = line.cursorToX(offset + 1);
    const QRect whole = rect();
    return {whole.left() + qRound(start + qMin(from, to)), whole.top(), qRound(qAbs(to - from)), whole.height()};
}

int AccessibleLineEdit::offsetAtPoint(const QPoint &point) const
{
    return edit()->cursorPositionAt(edit()->mapFromGlobal(point));
}

void AccessibleLineEdit::scrollToSubstring(int start, int end)
{
    edit()->setCursorPosition(end);
    edit()->setCursorPosition(start);
}

QString AccessibleLineEdit::attributes(int offset, int *start, int *end) const
{
    *start = 0;
    *end = offset < 0 || offset > characterCount() ? 0 : characterCount();
    return {};
}

void AccessibleLineEdit::deleteText(int start, int end)
{
    replaceText(start, end, QString());
}

void AccessibleLineEdit::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void AccessibleLineEdit::replaceText(int start, int end, const QString &text)
{
    if (edit()->isReadOnly() || !edit()->isEnabled())
        return;
    // By way of the line edit's own editing: the maximum length holds, and the change can be undone.
    edit()->setSelection(start, end - start);
    edit()->insert(text);
}

} // namespace Touch
