// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLineEdit>
#include <QString>

namespace Touch {

/** A line edit that tells the input method what its Enter key stands for, and loses nothing that is being composed. */
class LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(const QString &text);
    ~LineEdit() override;

    void setEnterKeyType(Qt::EnterKeyType type);
    /** Makes what an input method is still composing a part of the text. */
    void commit();

    /** Where the cursor is, in its own coordinates. */
    QRect cursorPlace() const { return cursorRect(); }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    Qt::EnterKeyType m_enterKeyType = Qt::EnterKeyDefault;
    QString m_composed; ///< stands in the text, but is not part of it yet
};

} // namespace Touch
