// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/label.h"

#include "platform/toolkit/text_p.h"

#include <QEvent>
#include <QStyle>

namespace Touch {

Label::Label(const QString &text, QGraphicsItem *parent)
    : Widget(parent)
    , m_text(std::make_unique<PreparedText>())
{
    m_text->setText(text);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

Label::Label(QGraphicsItem *parent)
    : Label(QString(), parent)
{ }

Label::~Label() = default;

QString Label::text() const
{
    return m_text->text();
}

void Label::setText(const QString &text)
{
    if (m_text->text() == text)
        return;
    m_text->setText(text);
    updateGeometry();
    update();
    announceName();
}

Qt::Alignment Label::alignment() const
{
    return m_alignment.value_or(style().alignment);
}

void Label::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    updateFit();
}

void Label::setTextElide(bool elides)
{
    m_elides = elides;
    updateFit();
}

void Label::setWordWrap(bool wraps)
{
    m_wraps = wraps;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(wraps);
    setSizePolicy(policy);
    updateFit();
}

bool Label::showsWholeText() const
{
    return prepared().fits(paddedRect().size());
}

void Label::updateFit()
{
    m_isStyled = false;
    updateGeometry();
    update();
}

QAccessible::Role Label::accessibleRole() const
{
    return QAccessible::StaticText;
}

QString Label::shownText() const
{
    return text();
}

void Label::styleChanged()
{
    m_isStyled = false;
    Widget::styleChanged();
}

void Label::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        updateFit();
    Widget::changeEvent(event);
}

Qt::Alignment Label::visualAlignment() const
{
    return QStyle::visualAlignment(layoutDirection(), alignment());
}

PreparedText &Label::prepared() const
{
    if (!m_isStyled) {
        m_isStyled = true;
        m_text->setStyle(style());
        m_text->setFit(m_wraps        ? PreparedText::Fit::Wrap
                           : m_elides ? PreparedText::Fit::Elide
                                      : PreparedText::Fit::Clip,
                       visualAlignment() & Qt::AlignHorizontal_Mask);
    }
    return *m_text;
}

QSizeF Label::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return Widget::sizeHint(which, constraint);
    const QMarginsF padding = style().padding;
    const qreal width = constraint.width() < 0 ? -1 : constraint.width() - padding.left() - padding.right();
    QSizeF content = prepared().naturalSize(width);
    if (which == Qt::MinimumSize)
        content.setWidth(prepared().minimumWidth());
    return styledSize(which, content);
}

void Label::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Widget::paint(painter, option, widget);
    const bool isDimmed = !isEnabled() && style().disabledColor.isValid();
    prepared().draw(painter, paddedRect(), visualAlignment(), isDimmed ? style().disabledColor : style().color);
}

} // namespace Touch
