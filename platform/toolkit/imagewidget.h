// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

/** An icon of the theme, in the style's colour and icon size. */
class ImageWidget : public Widget
{
    Q_OBJECT
    Q_PROPERTY(QString image READ image WRITE setImage)

public:
    explicit ImageWidget(const QString &iconId = QString(), QGraphicsItem *parent = nullptr);
    explicit ImageWidget(QGraphicsItem *parent);
    ~ImageWidget() override;

    QString image() const { return m_iconId; }
    void setImage(const QString &iconId);

    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    QString m_iconId;
};

} // namespace Touch
