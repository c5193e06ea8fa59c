// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringpage.h"

#include "platform/locale/locale.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/theme.h"

#include <QPainter>

using Ringer::Alarm;
using Touch::Button;
using Touch::Label;
using Touch::Locale;

namespace {

// A title may be 4096 characters long; this much is seen, the rest is not needed to know it.
constexpr auto TitleLength = 90;

Label *createLabel(const char *styleName)
{
    auto *label = new Label;
    label->setStyleName(QLatin1String(styleName));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

Button *createButton(const char *styleName)
{
    auto *button = new Button;
    button->setStyleName(QLatin1String(styleName));
    return button;
}

QString titleOf(const Alarm &alarm)
{
    const auto title = alarm.title.simplified();
    if (title.isEmpty()) {
        //% "Alarm"
        return qtTrId("qtn_ring_untitled");
    }
    return title.size() > TitleLength ? title.left(TitleLength) + QStringLiteral("…") : title;
}

QString snoozeText(int seconds)
{
    if (seconds < 60) {
        //% "Snooze"
        return qtTrId("qtn_ring_snooze_plain");
    }
    //% "Snooze · %n min"
    return qtTrId("qtn_ring_snooze", seconds / 60);
}

// The time without its half of the day, which stands by itself in smaller letters.
QString bigTime(const QDateTime &now)
{
    auto pattern = Locale::getDefault().icuFormatString(Locale::DateNone, Locale::TimeShort);
    pattern.remove(QLatin1Char('a'));
    return Locale::getDefault().formatDateTimeICU(now, pattern.trimmed());
}

} // namespace

RingPage::RingPage(QGraphicsItem *parent)
    : ApplicationPage(parent)
{
    m_minute.setSingleShot(true);
    m_minute.setTimerType(Qt::PreciseTimer);
    connect(&m_minute, &QTimer::timeout, this, &RingPage::refreshTime);
    connect(&Locale::getDefault(), &Locale::settingsChanged, this, &RingPage::refresh);
}

void RingPage::setAlarms(const QList<Alarm> &alarms)
{
    m_alarms = alarms;
    refresh();
}

void RingPage::createContent()
{
    ApplicationPage::createContent();
    setComponentsDisplayMode(AllComponents, Hide);
    m_date = createLabel("RingDate");
    m_time = createLabel("RingTime");
    m_half = createLabel("RingHalf");
    m_alarmTitle = createLabel("RingTitle");
    m_alarmTitle->setWordWrap(true);
    m_waiting = createLabel("RingWaiting");
    m_waiting->setWordWrap(true);
    m_snooze = createButton("RingSnooze");
    m_stop = createButton("RingStop");
    connect(m_snooze, &Button::clicked, this, &RingPage::snoozePressed);
    connect(m_stop, &Button::clicked, this, &RingPage::stopPressed);
    arrangeContent();
    refresh();
    m_snooze->setFocus();
}

void RingPage::arrangeContent()
{
    auto *layout = new Touch::Layout(centralWidget());
    auto *column = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    column->setContentsMargins(24, 24, 24, 40);
    column->addStretch(3);
    for (auto *label : {m_date, m_time, m_half, m_alarmTitle})
        column->addItem(label);
    column->addStretch(4);
    for (auto *item : std::initializer_list<Touch::Widget *> {m_waiting, m_snooze, m_stop})
        column->addItem(item);
}

// A glow like the first light, strongest behind the time.
void RingPage::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    ApplicationPage::paint(painter, option, widget);
    auto glow = Touch::Theme::instance().color(QStringLiteral("ringGlow"));
    QRadialGradient light(QPointF(size().width() / 2, size().height() * 0.34), size().height() * 0.5);
    light.setColorAt(0, glow);
    glow.setAlpha(0);
    light.setColorAt(1, glow);
    painter->fillRect(rect(), light);
}

void RingPage::enterDisplay()
{
    ApplicationPage::enterDisplay();
    refreshTime();
}

void RingPage::exitDisplay()
{
    m_minute.stop();
    ApplicationPage::exitDisplay();
}

void RingPage::changeEvent(QEvent *event)
{
    ApplicationPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        refresh();
}

void RingPage::refresh()
{
    if (!isContentCreated() || m_alarms.isEmpty())
        return;
    const auto &front = m_alarms.constFirst();
    m_alarmTitle->setText(titleOf(front));
    m_snooze->setText(snoozeText(front.snoozeSeconds));
    m_snooze->setVisible(front.snoozeSeconds > 0);
    //% "Stop"
    m_stop->setText(qtTrId("qtn_ring_stop"));
    refreshWaiting();
    refreshTime();
}

void RingPage::refreshTime()
{
    const auto now = QDateTime::currentDateTime();
    const auto &locale = Locale::getDefault();
    if (isContentCreated()) {
        m_date->setText(locale.formatDateTime(now, Locale::DateFull, Locale::TimeNone));
        m_time->setText(bigTime(now));
        m_half->setText(locale.isTwelveHour() ? locale.formatDateTime(now, QStringLiteral("%p")) : QString());
    }
    if (isOnDisplay())
        m_minute.start(60'000 - now.time().msecsSinceStartOfDay() % 60'000);
}

void RingPage::refreshWaiting()
{
    const auto count = int(m_alarms.size()) - 1;
    if (count == 0) {
        m_waiting->setText({});
        return;
    }
    const auto &next = m_alarms.at(1);
    const auto time
        = Locale::getDefault().formatDateTime(next.due.toLocalTime(), Locale::DateNone, Locale::TimeShort);
    //% "%n more alarm(s)"
    m_waiting->setText(qtTrId("qtn_ring_more", count) + QLatin1Char('\n') + time + QStringLiteral(" · ")
                       + titleOf(next));
}
