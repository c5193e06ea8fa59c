// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timepicker.h"

#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/pickerdial_p.h"
#include "platform/clockwidgets/pickerhandle_p.h"
#include "platform/clockwidgets/timetext_p.h"
#include "platform/locale/locale.h"

#include <cmath>
#include <QFocusEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QKeyEvent>
#include <QPainter>

using Touch::Locale;

namespace {

constexpr qreal HourDegrees = 30;
constexpr qreal MinuteDegrees = 6;
// Degrees in a millisecond: half a turn in a second and more cannot be meant to the minute.
constexpr qreal FastDrag = 0.18;
constexpr int WheelStep = 120;

int folded(int value, int range)
{
    return ((value % range) + range) % range;
}

// The short way round, from -180 to 180.
qreal turn(qreal from, qreal to)
{
    return std::remainder(to - from, 360.0);
}

// The half of the day with 24 hours. Digits and dash have no direction of their own to be read in.
QString hoursFrom(const Locale &locale, int start)
{
    constexpr QChar rightToLeftMark(0x200F);
    const QString range = localeDigits(locale, start, 2) + u'–' + localeDigits(locale, start + 11, 2);
    return locale.textDirection() == Qt::RightToLeft ? rightToLeftMark + range : range;
}

} // namespace

TimePicker::TimePicker(int hours, int minutes, QGraphicsItem *parent)
    : Widget(parent)
    , m_hours(folded(hours, 24))
    , m_minutes(folded(minutes, 60))
    , m_dial(std::make_unique<PickerDial>())
    , m_hourHandle(new PickerHandle(this, ClockHand::Hour))
    , m_minuteHandle(new PickerHandle(this, ClockHand::Minute))
    , m_touched(ClockHand::None)
    , m_keyHand(ClockHand::Hour)
{
    loadClockTheme();
    setFocusPolicy(Qt::StrongFocus);
    connect(&Locale::getDefault(), &Locale::settingsChanged, this, &TimePicker::updateTexts);
    m_dial->setStyle(*this);
    updateTexts();
}

TimePicker::~TimePicker() = default;

void TimePicker::setHours(int hours)
{
    setTime(hours, m_minutes);
}

void TimePicker::setMinutes(int minutes)
{
    setTime(m_hours, minutes);
}

void TimePicker::setTime(int hours, int minutes)
{
    hours = folded(hours, 24);
    minutes = folded(minutes, 60);
    if (m_hours == hours && m_minutes == minutes)
        return;
    const bool isOtherHalf = m_hours / 12 != hours / 12;
    m_hours = hours;
    m_minutes = minutes;
    if (isOtherHalf)
        updateTexts();
    update();
    placeHandles();
    announce();
    Q_EMIT timeChanged(m_hours, m_minutes);
}

void TimePicker::step(ClockHand hand, int steps)
{
    if (hand == ClockHand::Hour)
        setHours(m_hours + steps);
    else
        setMinutes(m_minutes + steps);
}

QSizeF TimePicker::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    QSizeF size = Widget::sizeHint(which, constraint);
    if (which == Qt::PreferredSize && constraint.width() >= 0)
        size.setHeight(qBound(style().minimumSize.height(), constraint.width(), size.height()));
    return size;
}

void TimePicker::changeHalf()
{
    setHours(m_hours + 12);
}

QPointF TimePicker::hourHandle() const
{
    return m_dial->handlePlace(ClockHand::Hour, handAngle(ClockHand::Hour));
}

QPointF TimePicker::minuteHandle() const
{
    return m_dial->handlePlace(ClockHand::Minute, handAngle(ClockHand::Minute));
}

qreal TimePicker::handAngle(ClockHand hand) const
{
    if (hand == m_touched)
        return m_dragAngle;
    return hand == ClockHand::Hour ? m_hours * HourDegrees : m_minutes * MinuteDegrees;
}

QString TimePicker::handText(ClockHand hand) const
{
    const Locale &locale = Locale::getDefault();
    if (hand == ClockHand::Minute)
        return localeDigits(locale, m_minutes, 2);
    return locale.isTwelveHour() ? localeDigits(locale, m_hours % 12 ? m_hours % 12 : 12, 1)
                                 : localeDigits(locale, m_hours, 2);
}

void TimePicker::updateTexts()
{
    const Locale &locale = Locale::getDefault();
    const bool isTwelveHour = locale.isTwelveHour();
    const int firstHour = m_hours / 12 * 12;
    PickerDial::Texts texts;
    for (int i = 0; i < 12; ++i) {
        const int hour = isTwelveHour ? (i ? i : 12) : firstHour + i;
        texts.hours << localeDigits(locale, hour, isTwelveHour ? 1 : 2);
        texts.minutes << localeDigits(locale, i * 5, 2);
    }
    for (const int start : {0, 12})
        texts.halves << (isTwelveHour ? timeText(locale, QTime(start, 0)).marker : hoursFrom(locale, start));
    m_dial->setTexts(texts);
    m_dial->setHalf(m_hours / 12);
    update();
}

void TimePicker::styleChanged()
{
    Widget::styleChanged();
    m_dial->setStyle(*this);
}

void TimePicker::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    Widget::resizeEvent(event);
    m_dial->setRect(paddedRect());
    placeHandles();
}

void TimePicker::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const auto handle = [this](ClockHand hand) {
        return PickerDial::Handle{handAngle(hand), handText(hand), m_touched == hand,
                                  m_showsKeyHand && m_keyHand == hand};
    };
    painter->save();
    m_dial->paint(*painter, handle(ClockHand::Hour), handle(ClockHand::Minute));
    painter->restore();
}

void TimePicker::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const ClockHand hand = m_dial->handAt(event->pos(), handAngle(ClockHand::Hour), handAngle(ClockHand::Minute));
    m_isMiddlePressed = hand == ClockHand::None && m_dial->isMiddle(event->pos());
    event->setAccepted(event->button() == Qt::LeftButton && (hand != ClockHand::None || m_isMiddlePressed));
    if (!event->isAccepted() || m_isMiddlePressed)
        return;
    m_lastMove = event->timestamp();
    press(hand, event->pos());
}

void TimePicker::press(ClockHand hand, const QPointF &point)
{
    const qreal angle = m_dial->angleAt(point);
    const qreal handleAngle = handAngle(hand);
    const bool isOnHandle = m_dial->isNearHandle(hand, handleAngle, point);
    m_dragAngle = handleAngle;
    m_grabOffset = isOnHandle ? turn(handleAngle, angle) : 0;
    m_touched = hand;
    m_keyHand = hand;
    update();
    Q_EMIT discPressed(hand == ClockHand::Hour, hand == ClockHand::Minute);
    if (isOnHandle)
        return;
    if (hand == ClockHand::Hour) {
        // A tap stays in the half of the day that the ring shows.
        const int hour = m_hours / 12 * 12 + qRound(angle / HourDegrees) % 12;
        m_dragAngle = hour * HourDegrees;
        setHours(hour);
    } else {
        const int minute = qRound(angle / (5 * MinuteDegrees)) % 12 * 5;
        m_dragAngle = minute * MinuteDegrees;
        setMinutes(minute);
    }
}

void TimePicker::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_touched == ClockHand::None || !m_dial->isAngleClear(event->pos()))
        return;
    const qreal angle = m_dial->angleAt(event->pos()) - m_grabOffset;
    const quint64 elapsed = qMax<quint64>(1, event->timestamp() - m_lastMove);
    m_lastMove = event->timestamp();
    follow(angle, std::abs(turn(m_dragAngle, angle)) > FastDrag * qreal(elapsed));
}

void TimePicker::follow(qreal angle, bool isFast)
{
    m_dragAngle += turn(m_dragAngle, angle);
    update();
    if (m_touched == ClockHand::Hour)
        setHours(qRound(m_dragAngle / HourDegrees));
    else if (isFast)
        setMinutes(qRound(m_dragAngle / (5 * MinuteDegrees)) * 5);
    else
        setMinutes(qRound(m_dragAngle / MinuteDegrees));
}

void TimePicker::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_isMiddlePressed && m_dial->isMiddle(event->pos()))
        changeHalf();
    release();
}

void TimePicker::ungrabMouseEvent(QEvent *event)
{
    release();
    Widget::ungrabMouseEvent(event);
}

void TimePicker::release()
{
    m_isMiddlePressed = false;
    if (m_touched == ClockHand::None)
        return;
    m_touched = ClockHand::None;
    update();
    Q_EMIT discReleased();
}

void TimePicker::wheelEvent(QGraphicsSceneWheelEvent *event)
{
    const ClockHand hand = m_dial->handAt(event->pos(), handAngle(ClockHand::Hour), handAngle(ClockHand::Minute));
    m_wheelRest += event->delta();
    const int steps = m_wheelRest / WheelStep;
    m_wheelRest -= steps * WheelStep;
    if (hand != ClockHand::None)
        step(hand, steps);
    event->setAccepted(hand != ClockHand::None);
}

void TimePicker::keyPressEvent(QKeyEvent *event)
{
    const int page = m_keyHand == ClockHand::Hour ? 12 : 5;
    switch (event->key()) {
    case Qt::Key_Up:
        step(m_keyHand, 1);
        break;
    case Qt::Key_Down:
        step(m_keyHand, -1);
        break;
    case Qt::Key_PageUp:
        step(m_keyHand, page);
        break;
    case Qt::Key_PageDown:
        step(m_keyHand, -page);
        break;
    // The hour stands before the minute in every language.
    case Qt::Key_Left:
        m_keyHand = ClockHand::Hour;
        break;
    case Qt::Key_Right:
        m_keyHand = ClockHand::Minute;
        break;
    default:
        Widget::keyPressEvent(event);
        return;
    }
    m_showsKeyHand = true;
    update();
}

void TimePicker::focusInEvent(QFocusEvent *event)
{
    m_showsKeyHand = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    Widget::focusInEvent(event);
}

void TimePicker::focusOutEvent(QFocusEvent *event)
{
    m_showsKeyHand = false;
    Widget::focusOutEvent(event);
}
