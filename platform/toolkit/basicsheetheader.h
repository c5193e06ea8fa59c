// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

#include <QPointer>

class QAction;

namespace Touch {

class Button;

/** The header of a sheet: what leaves it on the leading side, what completes it on the other. Owns neither action. */
class BasicSheetHeader : public Widget
{
    Q_OBJECT

public:
    explicit BasicSheetHeader(QGraphicsItem *parent = nullptr);
    ~BasicSheetHeader() override;

    QAction *negativeAction() const { return m_negative.action; }
    void setNegativeAction(QAction *action);
    QAction *positiveAction() const { return m_positive.action; }
    void setPositiveAction(QAction *action);

private:
    struct Side
    {
        Button *button = nullptr;
        QPointer<QAction> action;
    };

    Button *makeButton(const QString &name, const QString &styleName);
    void setAction(Side &side, QAction *action);
    void follow(Side &side);

    Side m_negative;
    Side m_positive;
};

} // namespace Touch
