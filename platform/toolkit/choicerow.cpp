// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/choicerow_p.h"

#include "platform/toolkit/text_p.h"

namespace Touch {

ChoiceRow::ChoiceRow(const QString &text, QAccessible::Role role, QGraphicsItem *parent)
    : Button(text, parent)
    , m_role(role)
    , m_label(std::make_unique<PreparedText>())
{
    m_label->setText(text);
    setStyleName(QStringLiteral("ChoiceRow"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

ChoiceRow::~ChoiceRow() = default;

void ChoiceRow::styleChanged()
{
    m_isPrepared = false;
    Button::styleChanged();
}

PreparedText &ChoiceRow::prepared() const
{
    if (!m_isPrepared) {
        m_isPrepared = true;
        m_label->setStyle(style());
    }
    return *m_label;
}

QSizeF ChoiceRow::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    QSizeF size = Button::sizeHint(which, constraint);
    if (which == Qt::PreferredSize && isCheckable())
        size.rwidth() += style().spacing + style().iconSize.width();
    return size;
}

void ChoiceRow::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    paintBackground(painter, backgroundColor(), false);
    QRectF area = paddedRect();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    if (isCheckable()) {
        const qreal width = style().iconSize.width();
        const QRectF mark(isMirrored ? area.left() : area.right() - width, area.top(), width, area.height());
        if (isChecked())
            paintIcon(painter, mark, QStringLiteral("icon-m-common-done"), foregroundColor());
        const qreal taken = width + style().spacing;
        area.adjust(isMirrored ? taken : 0, 0, isMirrored ? 0 : -taken, 0);
    }
    prepared().draw(painter, area, (isMirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter, foregroundColor());
    paintFocusRing(painter);
}

} // namespace Touch
