// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alarmlistitem.h"

#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/timetext_p.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/theme.h"

#include <cmath>
#include <QPainter>

using Touch::Locale;

namespace {

constexpr qreal lineGap = 2;
/** How small, as a share of its size, the repeat text gets to fit. */
constexpr qreal smallestShare = 0.75;
/** With larger text than that, what the alarm is called stands below its time. */
constexpr qreal largestScaleInLine = 1.25;

/** Says which alarm it switches. */
class RowSwitch : public Touch::Switch
{
public:
    explicit RowSwitch(const AlarmListItem *row, QGraphicsItem *parent)
        : Switch(parent)
        , m_row(row)
    { }

protected:
    QString shownText() const override { return m_row->accessibleName(); }

private:
    const AlarmListItem *m_row;
};

} // namespace

AlarmListItem::AlarmListItem(ItemStyle style, QGraphicsItem *parent)
    : Pressable(parent)
    , m_itemStyle(style)
    , m_switch(new RowSwitch(this, this))
{
    loadClockTheme();
    connect(m_switch, &Touch::Switch::clicked, this, &AlarmListItem::alarmStateChanged);
    connect(m_switch, &Touch::Switch::toggled, this, [this] { update(); });
    connect(&Locale::getDefault(), &Locale::settingsChanged, this, [this] { update(); });
}

AlarmListItem::~AlarmListItem() = default;

void AlarmListItem::setAlarmCookie(const long &cookie)
{
    m_alarmCookie = cookie;
}

void AlarmListItem::setTitle(const QTime &time)
{
    if (m_title == time)
        return;
    m_title = time;
    update();
    announceName();
}

void AlarmListItem::setSubTitle(const QString &text)
{
    if (m_subTitle == text)
        return;
    m_subTitle = text;
    update();
    announceName();
}

void AlarmListItem::setSubText(const QString &text)
{
    if (m_subText == text)
        return;
    m_subText = text;
    update();
    announceName();
}

void AlarmListItem::setAlarmTone(const QString &path)
{
    m_alarmTone = path;
}

bool AlarmListItem::enabled() const
{
    return m_switch->isChecked();
}

void AlarmListItem::setEnabled(bool enabled)
{
    if (m_switch->isChecked() == enabled)
        return;
    m_switch->setChecked(enabled);
    // Only a flip is seen to slide: the cell may just have become that of another alarm.
    m_switch->settle();
}

void AlarmListItem::setSnoozeValue(unsigned char minutes)
{
    m_snoozeValue = minutes;
}

void AlarmListItem::setItemStyle(ItemStyle style)
{
    if (m_itemStyle == style)
        return;
    m_itemStyle = style;
    update();
}

void AlarmListItem::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    Pressable::resizeEvent(event);
    placeSwitch();
}

void AlarmListItem::changeEvent(QEvent *event)
{
    Pressable::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeSwitch();
}

void AlarmListItem::styleChanged()
{
    Pressable::styleChanged();
    placeSwitch();
}

void AlarmListItem::placeSwitch()
{
    const QSizeF toggle = m_switch->effectiveSizeHint(Qt::PreferredSize);
    const QMarginsF padding = style().padding;
    const QRectF place(size().width() - padding.right() - toggle.width(), (size().height() - toggle.height()) / 2,
                       toggle.width(), toggle.height());
    m_switch->setGeometry(mirrored(place));
}

QRectF AlarmListItem::mirrored(const QRectF &rect) const
{
    if (layoutDirection() != Qt::RightToLeft)
        return rect;
    return {size().width() - rect.right(), rect.top(), rect.width(), rect.height()};
}

QString AlarmListItem::partName(const char *part) const
{
    return QStringLiteral("AlarmItem%1%2").arg(QLatin1String(part), QLatin1String(enabled() ? "" : "Off"));
}

// The same in all rows, so that the titles stand below each other.
qreal AlarmListItem::timeWidth() const
{
    const TimeText widest = timeText(Locale::getDefault(), QTime(22, 28));
    const auto digits = partStyle(*this, partName("Time"));
    const auto marker = partStyle(*this, partName("Marker"));
    const qreal markerWidth = widest.marker.isEmpty() ? 0 : marker->spacing + textWidth(*marker, widest.marker);
    return textWidth(*digits, widest.digits) + markerWidth + 1;
}

// Large texts have no room beside the time.
bool AlarmListItem::isStacked() const
{
    return Touch::Theme::instance().textScale() > largestScaleInLine;
}

qreal AlarmListItem::lineHeight(const char *part) const
{
    return std::ceil(
        QFontMetricsF(partStyle(*this, QStringLiteral("AlarmItem") + QLatin1String(part))->font()).height());
}

QSizeF AlarmListItem::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    QSizeF size = Pressable::sizeHint(which, constraint);
    if (which == Qt::MaximumSize || !isStacked())
        return size;
    const qreal texts = lineHeight("Title") + lineGap + lineHeight("Repeat");
    const QMarginsF padding = style().padding;
    size.setHeight(qMax(size.height(), lineHeight("Time") + texts + padding.top() + padding.bottom()));
    return size;
}

// What the alarm is called and how it repeats, between the time and the switch or below the time.
QRectF AlarmListItem::textsRect() const
{
    const qreal spacing = style().spacing;
    QRectF texts = rect().marginsRemoved(style().padding);
    texts.setRight(texts.right() - m_switch->size().width() - spacing);
    if (isStacked())
        texts.setTop(texts.top() + lineHeight("Time"));
    else
        texts.setLeft(texts.left() + timeWidth() + spacing);
    return texts;
}

QSizeF AlarmListItem::repeatRoom() const
{
    const QRectF texts = textsRect();
    const qreal above = m_subTitle.isEmpty() ? 0 : lineHeight("Title") + lineGap;
    return {texts.width(), texts.height() - above};
}

// Rather on two lines, and rather smaller, than cut off.
Touch::Style AlarmListItem::repeatStyle() const
{
    Touch::Style style = *partStyle(*this, QStringLiteral("AlarmItemRepeat"));
    const QSizeF room = repeatRoom();
    const int smallest = qRound(smallestShare * style.pixelSize);
    while (style.pixelSize > smallest && wrappedHeight(style, m_subText, room.width()) > room.height())
        --style.pixelSize;
    return style;
}

bool AlarmListItem::showsWholeSubText() const
{
    const QSizeF room = repeatRoom();
    return m_itemStyle == OneLine || wrappedHeight(repeatStyle(), m_subText, room.width()) <= room.height();
}

void AlarmListItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Touch::Style &look = style();
    paintBackground(painter, isDown() ? look.pressedBackground : look.background);
    painter->save();
    painter->setLayoutDirection(layoutDirection());
    const QRectF content = rect().marginsRemoved(look.padding);
    QRectF time(content.left(), content.top(), timeWidth(), content.height());
    if (isStacked())
        time.setHeight(lineHeight("Time"));
    paintTime(*painter, mirrored(time));
    paintTexts(*painter, mirrored(textsRect()));
    painter->restore();
    paintFocusRing(painter);
}

void AlarmListItem::paintTime(QPainter &painter, const QRectF &rect) const
{
    const TimeText text = timeText(Locale::getDefault(), m_title);
    const auto digits = partStyle(*this, partName("Time"));
    const auto marker = partStyle(*this, partName("Marker"));
    const qreal digitsWidth = textWidth(*digits, text.digits) + 1;
    const qreal markerWidth = text.marker.isEmpty() ? 0 : textWidth(*marker, text.marker) + 1;
    const qreal gap = text.marker.isEmpty() ? 0 : marker->spacing;
    const qreal start = text.markerFirst ? markerWidth + gap : 0;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const auto part = [&](qreal offset, qreal width) {
        return QRectF(isMirrored ? rect.right() - offset - width : rect.left() + offset, rect.top(), width,
                      rect.height());
    };
    drawPart(painter, part(start, digitsWidth), Qt::AlignCenter, *digits, text.digits);
    if (text.marker.isEmpty())
        return;
    const QFontMetricsF digitMetrics(digits->font());
    const QFontMetricsF markerMetrics(marker->font());
    QRectF markerRect = part(text.markerFirst ? 0 : digitsWidth + gap, markerWidth);
    const qreal baseline = rect.center().y() + (digitMetrics.ascent() - digitMetrics.descent()) / 2;
    markerRect.setTop(baseline - markerMetrics.ascent());
    markerRect.setHeight(markerMetrics.height());
    drawPart(painter, markerRect, Qt::AlignCenter, *marker, text.marker);
}

void AlarmListItem::paintTexts(QPainter &painter, const QRectF &rect) const
{
    const auto title = partStyle(*this, partName("Title"));
    if (m_itemStyle == OneLine) {
        drawPart(painter, rect, Qt::AlignLeft | Qt::AlignVCenter, *title, m_subTitle);
        return;
    }
    const Touch::Style repeat = repeatStyle();
    const QSizeF room = repeatRoom();
    const qreal wanted = wrappedHeight(repeat, m_subText, room.width());
    const bool isWhole = wanted <= room.height();
    const qreal repeatHeight = isWhole ? wanted : QFontMetricsF(repeat.font()).height();
    QRectF place = rect;
    // Without a title nothing hangs below an empty line.
    if (!m_subTitle.isEmpty()) {
        const qreal titleHeight = QFontMetricsF(title->font()).height();
        place.setTop(rect.center().y() - (titleHeight + lineGap + repeatHeight) / 2);
        place.setHeight(titleHeight);
        drawPart(painter, place, Qt::AlignLeft | Qt::AlignVCenter, *title, m_subTitle);
        place.moveTop(place.bottom() + lineGap);
        place.setHeight(repeatHeight);
    }
    const auto draw = isWhole ? drawWrapped : drawPart;
    draw(painter, place, Qt::AlignLeft | Qt::AlignVCenter, repeat, m_subText);
}

QString AlarmListItem::shownText() const
{
    QStringList texts{timeText(Locale::getDefault(), m_title).whole(), m_subTitle, m_subText};
    texts.removeAll(QString());
    return texts.join(QLatin1String(", "));
}
