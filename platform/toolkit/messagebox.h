// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/dialog.h"

namespace Touch {

/** A dialog that says something: a title, a text of any length, and buttons, mostly of one's own. */
class MessageBox : public Dialog
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit MessageBox(const QString &title, const QString &text = QString(), StandardButtons buttons = NoButton,
                        QGraphicsItem *parent = nullptr);
    ~MessageBox() override;

    QString text() const;
    void setText(const QString &text);

    QAccessible::Role accessibleRole() const override { return QAccessible::AlertMessage; }

private:
    Label *m_text;
};

} // namespace Touch
