// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

class LineEdit;
class LineEditProxy;

/** A line of text to edit. The editing is Qt's own line edit, so input methods, selection and clipboard work. */
class TextEdit : public Widget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt)
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(int cursorPosition READ cursorPosition WRITE setCursorPosition)

public:
    explicit TextEdit(const QString &text = QString(), QGraphicsItem *parent = nullptr);
    explicit TextEdit(QGraphicsItem *parent);
    ~TextEdit() override;

    QString text() const;
    void setText(const QString &text);
    /** Shown while the text is empty. */
    QString prompt() const;
    void setPrompt(const QString &prompt);
    /** The prompt, where it is shown, is not cut off. */
    bool showsWholePrompt() const;
    /** In characters; what is longer is cut. */
    int maxLength() const;
    void setMaxLength(int length);
    int cursorPosition() const;
    void setCursorPosition(int position);
    QString selectedText() const;
    /** Makes what an input method is still composing a part of the text; losing the focus does so as well. */
    void commit();

    /** What it asks of the software keyboard, a set of InputMethodState; 0 for nothing. */
    int attachedToolbar() const { return m_toolbar; }
    void attachToolbar(int id);

    QAccessible::Role accessibleRole() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

signals:
    void gainedFocus(Qt::FocusReason reason);
    void lostFocus(Qt::FocusReason reason);
    void returnPressed();
    void textChanged();

protected:
    void styleChanged() override;
    QString shownText() const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void applyStyle();
    void placeEdit();
    void fitFont();
    void followToolbar();

    LineEditProxy *m_proxy;
    LineEdit *m_edit; ///< owned by the proxy
    bool m_isStyled = false;
    int m_toolbar = 0;
};

} // namespace Touch
