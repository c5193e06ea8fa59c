// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringpage.h"

#include "platform/locale/locale.h"
#include "platform/ringer/clockalarm/snoozechoice.h"
#include "platform/ringer/clockalarm/stopcontrol.h"
#include "platform/ringer/clockalarm/waitingstack.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/theme.h"

#include <algorithm>
#include <array>
#include <QMarginsF>
#include <QPainter>

using Ringer::Alarm;
using Touch::Button;
using Touch::Label;
using Touch::Locale;

namespace {

constexpr auto AnswerSpacing = 12;
constexpr auto MostSpared = 6;
constexpr auto ColumnSpacing = 16;
constexpr QMarginsF Margins(24, 16, 24, 28);

Label *createLabel(const char *styleName)
{
    auto *label = new Label;
    label->setStyleName(QLatin1String(styleName));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

Touch::Widget *createColumn(std::initializer_list<Touch::Widget *> items, Qt::Alignment alignment, qreal spacing)
{
    auto *widget = new Touch::StylableWidget;
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *column = new Touch::LinearLayoutPolicy(new Touch::Layout(widget), Qt::Vertical);
    column->setSpacing(spacing);
    column->addStretch();
    for (auto *item : items)
        column->addItem(item, Qt::AlignHCenter);
    if (alignment == Qt::AlignVCenter)
        column->addStretch();
    return widget;
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
    if (!isNewFront)
        return;
    announce();
    if (!isContentCreated())
        return;
    // What answered the last alarm must not stop this one as well.
    m_stop->reset();
    m_snooze->setFocus();
}

void RingPage::setStopGesture(StopGesture gesture)
{
    m_gesture = gesture;
    if (m_stop)
        m_stop->setGesture(gesture);
}

QAccessible::Role RingPage::accessibleRole() const
{
    return QAccessible::AlertMessage;
}

void RingPage::announce()
{
    if (m_alarms.isEmpty())
        return;
    const auto &front = m_alarms.constFirst();
    setAccessibleName(RingTexts::due(front.due) + QStringLiteral(", ") + RingTexts::title(front.title));
    if (!isOnDisplay())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void RingPage::createContent()
{
    ApplicationPage::createContent();
    setComponentsDisplayMode(AllComponents, Hide);
    m_date = createLabel("RingDate");
    m_time = createLabel("RingTime");
    // Better as wide as it is than less of it.
    m_time->setTextElide(false);
    m_half = createLabel("RingHalf");
    m_alarmTitle = createLabel("RingTitle");
    m_alarmTitle->setWordWrap(true);
    m_waiting = new WaitingStack;
    connect(m_waiting, &WaitingStack::chosen, this, &RingPage::waitingChosen);
    m_snooze = new Button;
    m_snooze->setObjectName(QStringLiteral("snooze"));
    connect(m_snooze, &Button::clicked, this, [this] { emit snoozePressed(m_alarms.constFirst().snoozeSeconds); });
    m_choice = new SnoozeChoice;
    connect(m_choice, &SnoozeChoice::chosen, this, &RingPage::snoozePressed);
    m_stop = new StopControl;
    m_stop->setObjectName(QStringLiteral("stop"));
    m_stop->setGesture(m_gesture);
    connect(m_stop, &StopControl::stopped, this, &RingPage::stopPressed);
    applyStyles();
    arrangeContent();
    refresh();
}

// The moment above the answers, or beside them on a wide screen.
void RingPage::arrangeContent()
{
    // As large as the page, whatever was wanted on a larger screen before.
    centralWidget()->setMinimumSize(0, 0);
    auto *layout = new Touch::Layout(centralWidget());
    m_moment = createColumn({m_date, m_time, m_half, m_alarmTitle}, Qt::AlignVCenter, 0);
    m_answers = createColumn({m_waiting, m_snooze, m_choice, m_stop}, Qt::AlignBottom, AnswerSpacing);
    auto *portrait = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    layout->setPortraitPolicy(portrait);
    auto *landscape = new Touch::LinearLayoutPolicy(layout, Qt::Horizontal);
    layout->setLandscapePolicy(landscape);
    for (auto *policy : {portrait, landscape}) {
        policy->setContentsMargins(Margins.left(), Margins.top(), Margins.right(), Margins.bottom());
        policy->setSpacing(ColumnSpacing);
        policy->addItem(m_moment);
        policy->addItem(m_answers);
    }
}

// A small screen gets smaller letters, never fewer of them.
void RingPage::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    applyStyles();
    ApplicationPage::resizeEvent(event);
}

void RingPage::applyStyles()
{
    if (!isContentCreated())
        return;
    const auto shortSide = std::min(size().width(), size().height());
    const auto longSide = std::max(size().width(), size().height());
    const auto isCompact = shortSide < 400 || longSide < 720 || size().height() < 560;
    const auto suffix = QLatin1String(isCompact ? "Compact" : "");
    m_time->setStyleName(QLatin1String("RingTime") + suffix);
    m_alarmTitle->setStyleName(QLatin1String("RingTitle") + suffix);
    m_snooze->setStyleName(QLatin1String("RingSnooze") + suffix);
    m_stop->setStyleName(QLatin1String("RingStop") + suffix);
    m_choice->setCompact(isCompact);
    fit();
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
    announce();
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
    m_snooze->setText(RingTexts::snooze(front.snoozeSeconds));
    m_snooze->setVisible(front.snoozeSeconds > 0);
    m_choice->refresh(front.snoozeSeconds);
    m_waiting->setAlarms(m_alarms.mid(1));
    refreshTime();
    fit();
}

// Snooze and Stop have to be there whole, whatever else there is to read.
void RingPage::fit()
{
    if (!isContentCreated() || m_alarms.isEmpty())
        return;
    for (int step = 0; step <= MostSpared; ++step) {
        spare(step);
        if (neededHeight() <= size().height())
            return;
    }
}

// Asks the columns themselves: what holds them learns of a change only later.
qreal RingPage::neededHeight() const
{
    const auto isWide = size().width() > size().height();
    const auto room = size().width() - Margins.left() - Margins.right();
    const auto heightOf = [](const Touch::Widget *column, qreal width) {
        return column->layout()->effectiveSizeHint(Qt::MinimumSize, {width, -1}).height();
    };
    const auto border = Margins.top() + Margins.bottom();
    if (isWide)
        return border + std::max(heightOf(m_moment, m_moment->size().width()), heightOf(m_answers, -1));
    return border + heightOf(m_moment, room) + ColumnSpacing + heightOf(m_answers, room);
}

// Step by step what is least needed by who wakes up: words of the title, the cards of what waits, the date, the choice.
void RingPage::spare(int step)
{
    constexpr std::array TitleLengths{90, 60, 40, 20};
    const auto &front = m_alarms.constFirst();
    m_alarmTitle->setText(
        RingTexts::title(front.title, TitleLengths.at(std::min<std::size_t>(step, TitleLengths.size() - 1))));
    m_waiting->setRoom(step >= 4 ? 0 : size().height() < 720 ? 1 : 2);
    m_date->setVisible(step < 5);
    m_choice->setVisible(step < 6 && front.snoozeSeconds > 0);
}

void RingPage::refreshTime()
{
    const auto now = QDateTime::currentDateTime();
    if (isContentCreated()) {
        const QString pattern = Locale::getDefault().icuFormatString(QStringLiteral("MMMMEEEEd"));
        m_date->setText(Locale::getDefault().formatDateTimeICU(now, pattern));
        m_time->setText(RingTexts::bigTime(now));
        m_half->setText(RingTexts::halfOfDay(now));
    }
    if (isOnDisplay())
        m_minute.start(60'000 - now.time().msecsSinceStartOfDay() % 60'000);
}
