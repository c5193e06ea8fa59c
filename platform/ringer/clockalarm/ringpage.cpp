// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringpage.h"

#include "platform/locale/locale.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/theme.h"

#include <algorithm>
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

Touch::Widget *createColumn(std::initializer_list<Touch::Widget *> items, Qt::Alignment alignment)
{
    auto *widget = new Touch::StylableWidget;
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *column = new Touch::LinearLayoutPolicy(new Touch::Layout(widget), Qt::Vertical);
    column->addStretch();
    for (auto *item : items)
        column->addItem(item, Qt::AlignHCenter);
    if (alignment == Qt::AlignVCenter)
        column->addStretch();
    return widget;
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
    const auto isNewFront = m_alarms.isEmpty() || m_alarms.constFirst().cookie != alarms.constFirst().cookie;
    m_alarms = alarms;
    refresh();
    // The key that answered the last alarm must not stop this one as well.
    if (isNewFront && isContentCreated())
        m_snooze->setFocus();
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
    m_next = createLabel("RingNext");
    m_snooze = new Button;
    m_snooze->setObjectName(QStringLiteral("snooze"));
    m_stop = new Button;
    m_stop->setObjectName(QStringLiteral("stop"));
    connect(m_snooze, &Button::clicked, this, &RingPage::snoozePressed);
    connect(m_stop, &Button::clicked, this, &RingPage::stopPressed);
    applyStyles();
    arrangeContent();
    refresh();
}

// The moment above the answers, or beside them on a wide screen.
void RingPage::arrangeContent()
{
    auto *layout = new Touch::Layout(centralWidget());
    auto *moment = createColumn({m_date, m_time, m_half, m_alarmTitle}, Qt::AlignVCenter);
    auto *answers = createColumn({m_waiting, m_next, m_snooze, m_stop}, Qt::AlignBottom);
    auto *portrait = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    layout->setPortraitPolicy(portrait);
    auto *landscape = new Touch::LinearLayoutPolicy(layout, Qt::Horizontal);
    layout->setLandscapePolicy(landscape);
    for (auto *policy : {portrait, landscape}) {
        policy->setContentsMargins(24, 24, 24, 36);
        policy->setSpacing(24);
        policy->addItem(moment);
        policy->addItem(answers);
    }
}

// A small screen gets smaller letters, never fewer of them.
void RingPage::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    ApplicationPage::resizeEvent(event);
    applyStyles();
}

void RingPage::applyStyles()
{
    if (!isContentCreated())
        return;
    const auto shortSide = std::min(size().width(), size().height());
    const auto longSide = std::max(size().width(), size().height());
    const auto suffix = QLatin1String(shortSide < 400 || longSide < 720 ? "Compact" : "");
    m_time->setStyleName(QLatin1String("RingTime") + suffix);
    m_alarmTitle->setStyleName(QLatin1String("RingTitle") + suffix);
    m_snooze->setStyleName(QLatin1String("RingSnooze") + suffix);
    m_stop->setStyleName(QLatin1String("RingStop") + suffix);
}

// A glow like the first light, strongest behind the time.
void RingPage::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    ApplicationPage::paint(painter, option, widget);
    auto glow = Touch::Theme::instance().color(QStringLiteral("ringGlow"));
    const auto centre = mapFromItem(m_time, m_time->rect().center());
    QRadialGradient light(centre, 0.9 * std::min(size().width(), size().height()));
    light.setColorAt(0, glow);
    glow.setAlpha(0);
    light.setColorAt(1, glow);
    painter->fillRect(rect(), light);
}

void RingPage::enterDisplay()
{
    ApplicationPage::enterDisplay();
    m_snooze->setFocus();
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
    m_waiting->setVisible(count > 0);
    m_next->setVisible(count > 0);
    if (count == 0)
        return;
    const auto &next = m_alarms.at(1);
    const auto time = Locale::getDefault().formatDateTime(next.due.toLocalTime(), Locale::DateNone, Locale::TimeShort);
    //% "%n more alarm(s)"
    m_waiting->setText(qtTrId("qtn_ring_more", count));
    m_next->setText(time + QStringLiteral(" · ") + titleOf(next));
}
