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
#include <QWidget>

using Touch::Locale;

namespace {

constexpr qreal LineGap = 2;
/** How small the repeat text gets beside the time, as a share of its designed size; it has more room below the time. */
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
    arrange();
    announceName();
}

void AlarmListItem::setSubText(const QString &text)
{
    if (m_subText == text)
        return;
    m_subText = text;
    arrange();
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
    arrange();
}

void AlarmListItem::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    Pressable::resizeEvent(event);
    arrange();
}

void AlarmListItem::changeEvent(QEvent *event)
{
    Pressable::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

void AlarmListItem::styleChanged()
{
    Pressable::styleChanged();
    // Else it would learn of its new size only after it was placed.
    m_switch->refreshStyle();
    arrange();
}

void AlarmListItem::arrange()
{
    const QRectF line = topLine();
    QRectF place(QPointF(), switchSize());
    place.moveCenter(line.center());
    place.moveRight(line.right());
    m_switch->setGeometry(mirroredIn(*this, place.translated(0, qRound(place.top()) - place.top())));
    update();
}

QSizeF AlarmListItem::switchSize() const
{
    return m_switch->effectiveSizeHint(Qt::PreferredSize);
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
    const qreal texts = lineHeight("Title") + LineGap + twoRepeatLines();
    const QMarginsF padding = style().padding;
    size.setHeight(qMax(size.height(), lineHeight("Time") + texts + padding.top() + padding.bottom()));
    return size;
}

// As many as a row with large texts has room for.
qreal AlarmListItem::twoRepeatLines() const
{
    return std::ceil(wrappedHeight(*partStyle(*this, "AlarmItemRepeat"), "0\n0", QWIDGETSIZE_MAX));
}

// What time and switch stand in; stacked, the texts and the line above them stand in the middle together.
QRectF AlarmListItem::topLine() const
{
    QRectF line = rect().marginsRemoved(style().padding);
    if (isStacked()) {
        line.setTop(line.top() + qMax(0.0, (line.height() - lineHeight("Time") - textsHeight()) / 2));
        line.setHeight(lineHeight("Time"));
    }
    return line;
}

// What the alarm is called and how it repeats, between the time and the switch or below them.
QRectF AlarmListItem::textsRect() const
{
    const QRectF line = topLine();
    if (isStacked())
        return {line.left(), line.bottom(), line.width(), textsHeight()};
    return {line.left() + widestTime() + style().spacing, line.top(), textsRoom().width(), line.height()};
}

QSizeF AlarmListItem::textsRoom() const
{
    const QSizeF content = rect().marginsRemoved(style().padding).size();
    if (isStacked())
        return {content.width(), content.height() - lineHeight("Time")};
    return {content.width() - widestTime() - switchSize().width() - 2 * style().spacing, content.height()};
}

QSizeF AlarmListItem::repeatRoom() const
{
    const qreal above = m_subTitle.isEmpty() ? 0 : lineHeight("Title") + LineGap;
    return textsRoom() - QSizeF(0, above);
}

qreal AlarmListItem::textsHeight() const
{
    const qreal title = m_subTitle.isEmpty() ? 0 : lineHeight("Title");
    if (m_itemStyle == OneLine)
        return title;
    return repeatHeight() + (title > 0 ? title + LineGap : 0);
}

qreal AlarmListItem::repeatHeight() const
{
    const Touch::Style repeat = repeatStyle();
    const QSizeF room = repeatRoom();
    const qreal wanted = wrappedHeight(repeat, m_subText, room.width());
    return wanted <= room.height() ? wanted : QFontMetricsF(repeat.font()).height();
}

int AlarmListItem::subTextPixelSize() const
{
    return repeatStyle().pixelSize;
}

// Rather on two lines, and rather smaller, than cut off.
Touch::Style AlarmListItem::repeatStyle() const
{
    Touch::Style style = *partStyle(*this, QStringLiteral("AlarmItemRepeat"));
    const QSizeF room = repeatRoom();
    const int designed = style.designedPixelSize > 0 ? style.designedPixelSize : style.pixelSize;
    const int smallest = isStacked() ? designed : qRound(SmallestShare * designed);
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
    QRectF time = topLine();
    time.setWidth(widestTime());
    paintTime(*painter, mirroredIn(*this, time));
    paintTexts(*painter, mirroredIn(*this, textsRect()));
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
    QRectF place = rect;
    // Without a title nothing hangs below an empty line.
    if (!m_subTitle.isEmpty()) {
        place.setTop(rect.center().y() - textsHeight() / 2);
        place.setHeight(lineHeight("Title"));
        drawPart(painter, place, Qt::AlignLeft | Qt::AlignVCenter, *title, m_subTitle);
        place.moveTop(place.bottom() + LineGap);
        place.setHeight(repeatHeight());
    }
    const auto draw = showsWholeSubText() ? drawWrapped : drawPart;
    draw(painter, place, Qt::AlignLeft | Qt::AlignVCenter, repeat, m_subText);
}

QString AlarmListItem::shownText() const
{
    QStringList texts{timeText(Locale::getDefault(), m_title).whole(), m_subTitle, m_subText};
    texts.removeAll(QString());
    return texts.join(QLatin1String(", "));
}
