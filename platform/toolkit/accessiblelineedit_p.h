// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessibleWidget>

namespace Touch {

class LineEdit;
class Widget;

/**
 * The line edit of a text field in the place that the field has in its window, to be read and typed into. Offsets are
 * in UTF-16 code units, as the line edit counts.
 */
class AccessibleLineEdit : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    AccessibleLineEdit(LineEdit *edit, Widget *field);
    ~AccessibleLineEdit() override;

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessibleInterface *parent() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    LineEdit *edit() const;

    Widget *m_field; ///< owns the line edit
};

} // namespace Touch
