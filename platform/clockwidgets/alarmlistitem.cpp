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

constexpr qreal LineGap = 2;
/** How small, as a share of its designed size, the repeat text gets to fit. */
constexpr qreal SmallestShare = 0.75;
/** With larger text than that, what the alarm is called stands below its time. */
constexpr qreal LargestScaleInLine = 1.25;

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
    m_switch->setGeometry(mirroredIn(*this, place));
}

QString AlarmListItem::partName(const char *part) const
{
    return QStringLiteral("AlarmItem%1%2").arg(QLatin1String(part), QLatin1String(enabled() ? "" : "Off"));
}

TimeLook AlarmListItem::timeLook() const
{
    return {partStyle(*this, partName("Time")), partStyle(*this, partName("Marker"))};
}

// The same in all rows, so that the titles stand below each other.
qreal AlarmListItem::widestTime() const
{
    return timeWidth(timeLook(), timeText(Locale::getDefault(), QTime(22, 28)));
}

// Large texts have no room beside the time.
bool AlarmListItem::isStacked() const
{
    return Touch::Theme::instance().textScale() > LargestScaleInLine;
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
    const qreal texts = lineHeight("Title") + LineGap + lineHeight("Repeat");
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
    if (!isStacked()) {
        texts.setLeft(texts.left() + widestTime() + spacing);
        return texts;
    }
    // One line and the time above it stand together, in the middle.
    if (m_itemStyle == OneLine) {
        const qreal free = texts.height() - lineHeight("Time") - (m_subTitle.isEmpty() ? 0 : lineHeight("Title"));
        texts.adjust(0, free / 2, 0, -free / 2);
    }
    texts.setTop(texts.top() + lineHeight("Time"));
    return texts;
}

QSizeF AlarmListItem::repeatRoom() const
{
    const QRectF texts = textsRect();
    const qreal above = m_subTitle.isEmpty() ? 0 : lineHeight("Title") + LineGap;
    return {texts.width(), texts.height() - above};
}

// Rather on two lines, and rather smaller, than cut off.
Touch::Style AlarmListItem::repeatStyle() const
{
    Touch::Style style = *partStyle(*this, QStringLiteral("AlarmItemRepeat"));
    const QSizeF room = repeatRoom();
    const int designed = style.designedPixelSize > 0 ? style.designedPixelSize : style.pixelSize;
    const int smallest = qRound(SmallestShare * designed);
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
    const QRectF texts = textsRect();
    QRectF time(content.left(), content.top(), widestTime(), content.height());
    if (isStacked())
        time = QRectF(content.left(), texts.top() - lineHeight("Time"), widestTime(), lineHeight("Time"));
    paintTime(*painter, mirroredIn(*this, time));
    paintTexts(*painter, mirroredIn(*this, texts));
    painter->restore();
    paintFocusRing(painter);
}

// It begins where the row does; the widest of them fills the place.
void AlarmListItem::paintTime(QPainter &painter, const QRectF &rect) const
{
    const TimeText text = timeText(Locale::getDefault(), m_title);
    QRectF place = rect;
    place.setWidth(timeWidth(timeLook(), text));
    if (layoutDirection() == Qt::RightToLeft)
        place.moveRight(rect.right());
    drawTime(painter, place, timeLook(), text);
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
        place.setTop(rect.center().y() - (titleHeight + LineGap + repeatHeight) / 2);
        place.setHeight(titleHeight);
        drawPart(painter, place, Qt::AlignLeft | Qt::AlignVCenter, *title, m_subTitle);
        place.moveTop(place.bottom() + LineGap);
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
