// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/button.h"

#include "platform/toolkit/text_p.h"

#include <QPainter>
#include <QPointer>

namespace Touch {

Button::Button(const QString &text, QGraphicsItem *parent)
    : Pressable(parent)
    , m_text(std::make_unique<PreparedText>())
{
    m_text->setText(text);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

Button::Button(QGraphicsItem *parent)
    : Button(QString(), parent)
{ }

Button::~Button() = default;

QString Button::text() const
{
    return m_text->text();
}

void Button::setText(const QString &text)
{
    if (m_text->text() == text)
        return;
    m_text->setText(text);
    updateGeometry();
    update();
    announceName();
}

void Button::setTextShrinks(bool shrinks)
{
    if (m_shrinks == shrinks)
        return;
    m_shrinks = shrinks;
    m_isStyled = false;
    update();
}

void Button::setIconID(const QString &iconId)
{
    if (m_iconId == iconId)
        return;
    m_iconId = iconId;
    updateGeometry();
    update();
}

void Button::setViewType(const QString &viewType)
{
    if (m_viewType == viewType)
        return;
    m_viewType = viewType;
    updateGeometry();
    update();
}

void Button::setCheckable(bool isCheckable)
{
    m_isCheckable = isCheckable;
    if (!isCheckable)
        setChecked(false);
}

void Button::setChecked(bool isChecked)
{
    const bool wanted = isChecked && m_isCheckable;
    if (m_isChecked == wanted)
        return;
    m_isChecked = wanted;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    tell(&event);
    emit toggled(wanted);
}

void Button::click()
{
    const QPointer<Button> guard(this);
    if (m_isCheckable)
        setChecked(!m_isChecked);
    if (guard)
        emit clicked(m_isChecked);
}

void Button::downChanged()
{
    Pressable::downChanged();
    if (isDown())
        emit pressed();
    else
        emit released();
}

QAccessible::Role Button::accessibleRole() const
{
    return m_isCheckable ? QAccessible::CheckBox : QAccessible::Button;
}

QStringList Button::accessibleActions() const
{
    return {m_isCheckable ? QAccessibleActionInterface::toggleAction() : QAccessibleActionInterface::pressAction()};
}

QString Button::shownText() const
{
    return text();
}

void Button::styleChanged()
{
    m_isStyled = false;
    Pressable::styleChanged();
}

PreparedText &Button::prepared() const
{
    if (!m_isStyled) {
        m_isStyled = true;
        m_text->setStyle(style());
        m_text->setFit(m_shrinks ? PreparedText::Fit::Shrink : PreparedText::Fit::Elide);
    }
    return *m_text;
}

bool Button::showsText() const
{
    return m_viewType != QLatin1String("icon") && !m_text->text().isEmpty();
}

/** The width that the icon takes from the text. */
qreal Button::besideText() const
{
    return m_iconId.isEmpty() ? 0 : style().iconSize.width() + style().spacing;
}

bool Button::showsWholeText() const
{
    return !showsText() || prepared().fits(paddedRect().size() - QSizeF(besideText(), 0));
}

int Button::fittedTextSize() const
{
    return prepared().fittedPixelSize(paddedRect().width() - besideText());
}

int Button::shownTextSize() const
{
    return m_largestTextSize > 0 ? qMin(m_largestTextSize, fittedTextSize()) : fittedTextSize();
}

void Button::setLargestTextSize(int pixels)
{
    if (m_largestTextSize == pixels)
        return;
    m_largestTextSize = pixels;
    m_text->setLargestPixelSize(pixels);
    update();
}

QSizeF Button::contentSize() const
{
    QSizeF size(0, 0);
    if (showsText())
        size = prepared().naturalSize();
    if (!m_iconId.isEmpty()) {
        const QSizeF icon = style().iconSize;
        const qreal gap = showsText() ? style().spacing : 0;
        size = {size.width() + gap + icon.width(), qMax(size.height(), icon.height())};
    }
    return size;
}

QSizeF Button::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return Pressable::sizeHint(which, constraint);
    QSizeF size = contentSize();
    if (which == Qt::MinimumSize && showsText())
        size.rwidth() += prepared().minimumWidth() - prepared().naturalSize().width();
    return styledSize(which, size);
}

QColor Button::foregroundColor() const
{
    const Style &look = style();
    if (!isEnabled() && look.disabledColor.isValid())
        return look.disabledColor;
    if (isDown() && look.pressedColor.isValid())
        return look.pressedColor;
    return m_isChecked && look.checkedColor.isValid() ? look.checkedColor : look.color;
}

QColor Button::backgroundColor() const
{
    const Style &look = style();
    if (!isEnabled() && look.disabledBackground.isValid())
        return look.disabledBackground;
    if (isDown() && look.pressedBackground.isValid())
        return look.pressedBackground;
    return m_isChecked && look.checkedBackground.isValid() ? look.checkedBackground : look.background;
}

void Button::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    // A border is for what stands out from the page by nothing else.
    paintBackground(painter, backgroundColor(), !m_isChecked);
    QRectF area = paddedRect();
    const QColor color = foregroundColor();
    if (!m_iconId.isEmpty()) {
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        const qreal width = style().iconSize.width();
        const qreal used = qMin(contentSize().width(), area.width());
        area = QRectF(area.center().x() - used / 2, area.top(), used, area.height());
        const qreal left = isMirrored ? area.right() - width : area.left();
        paintIcon(painter, QRectF(left, area.top(), width, area.height()), m_iconId, color);
        const qreal gap = width + style().spacing;
        area.adjust(isMirrored ? 0 : gap, 0, isMirrored ? -gap : 0, 0);
    }
    if (showsText())
        prepared().draw(painter, area, Qt::AlignCenter, color);
    paintFocusRing(painter);
}

} // namespace Touch
