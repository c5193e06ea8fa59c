// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLineEdit>

namespace Touch {

/** A line edit that tells the input method what its Enter key stands for. */
class LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(const QString &text);
    ~LineEdit() override;

    void setEnterKeyType(Qt::EnterKeyType type);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

private:
    Qt::EnterKeyType m_enterKeyType = Qt::EnterKeyDefault;
};

} // namespace Touch
