// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/toneitem_p.h"

#include "platform/clockwidgets/parts_p.h"

#include <QPainter>

namespace {

constexpr qreal MarkLine = 2;
constexpr qreal BarWidth = 4;

} // namespace

ToneItem::ToneItem(QGraphicsItem *parent)
    : Pressable(parent)
{
    loadClockTheme();
}

ToneItem::~ToneItem() = default;

void ToneItem::setTone(const QString &path, const QString &title, const QString &origin)
{
    m_path = path;
    m_title = title;
    m_origin = origin;
    update();
}

void ToneItem::setState(bool isSelected, bool isPlaying)
{
    if (m_isSelected == isSelected && m_isPlaying == isPlaying)
        return;
    m_isSelected = isSelected;
    m_isPlaying = isPlaying;
    update();
}

QString ToneItem::shownText() const
{
    QStringList texts{m_title, m_origin};
    if (m_isSelected)
        texts += qtTrId("qtn_sond_selected");
    texts.removeAll(QString());
    return texts.join(QLatin1String(", "));
}

void ToneItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Touch::Style &look = style();
    paintBackground(painter, isDown() ? look.pressedBackground : look.background);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(layoutDirection());
    const QRectF content = rect().marginsRemoved(look.padding);
    const qreal markSize = look.iconSize.height();
    const QRectF mark(content.left(), content.center().y() - markSize / 2, markSize, markSize);
    const QRectF bars(content.right() - markSize, mark.top(), markSize, markSize);
    const qreal textsLeft = mark.right() + look.spacing;
    paintMark(*painter, mirroredIn(*this, mark));
    paintTexts(*painter,
               mirroredIn(*this, {textsLeft, content.top(), bars.left() - look.spacing - textsLeft, content.height()}));
    if (m_isPlaying)
        paintBars(*painter, mirroredIn(*this, bars));
    painter->restore();
    paintFocusRing(painter);
}

void ToneItem::paintMark(QPainter &painter, const QRectF &rect) const
{
    const QRectF ring = rect.adjusted(MarkLine, MarkLine, -MarkLine, -MarkLine);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_isSelected ? style().accentColor : style().promptColor, MarkLine));
    painter.drawEllipse(ring);
    if (!m_isSelected)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(style().accentColor);
    painter.drawEllipse(rect.center(), rect.width() / 4, rect.height() / 4);
}

void ToneItem::paintTexts(QPainter &painter, const QRectF &rect) const
{
    const auto title = partStyle(*this, m_isSelected ? QStringLiteral("ToneTitleNow") : QStringLiteral("ToneTitle"));
    if (m_origin.isEmpty()) {
        drawPart(painter, rect, Qt::AlignLeft | Qt::AlignVCenter, *title, m_title);
        return;
    }
    const auto origin = partStyle(*this, QStringLiteral("ToneOrigin"));
    const qreal titleHeight = QFontMetricsF(title->font()).height();
    const qreal originHeight = QFontMetricsF(origin->font()).height();
    const qreal top = rect.center().y() - (titleHeight + originHeight) / 2;
    drawPart(painter, {rect.left(), top, rect.width(), titleHeight}, Qt::AlignLeft | Qt::AlignVCenter, *title, m_title);
    drawPart(painter, {rect.left(), top + titleHeight, rect.width(), originHeight}, Qt::AlignLeft | Qt::AlignVCenter,
             *origin, m_origin);
}

// Three bars of a sound that plays.
void ToneItem::paintBars(QPainter &painter, const QRectF &rect) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(style().accentColor);
    qreal left = rect.center().x() - 2.5 * BarWidth;
    for (const qreal share : {0.5, 0.85, 0.35}) {
        const qreal height = share * rect.height();
        painter.drawRoundedRect(QRectF(left, rect.bottom() - 2 - height, BarWidth, height), BarWidth / 2, BarWidth / 2);
        left += 2 * BarWidth;
    }
}
