// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/plainscreen.h"

#include "platform/ringer/texts/ringtexts.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Ringer {

namespace {

QLabel *createLabel(int points)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    auto font = label->font();
    font.setPointSize(points);
    label->setFont(font);
    return label;
}

QPushButton *createButton(const char *name)
{
    auto *button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setMinimumHeight(96);
    auto font = button->font();
    font.setPointSize(18);
    button->setFont(font);
    return button;
}

auto withCookie(quint32 cookie)
{
    return [cookie](const Alarm &alarm) { return alarm.cookie == cookie; };
}

} // namespace

PlainScreen::PlainScreen()
    : m_time(createLabel(56))
    , m_title(createLabel(20))
    , m_snooze(createButton("snooze"))
    , m_stop(createButton("stop"))
{
    setWindowFlag(Qt::WindowStaysOnTopHint);
    resize(480, 854);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addStretch(1);
    layout->addWidget(m_time);
    layout->addWidget(m_title);
    layout->addStretch(1);
    layout->addWidget(m_snooze);
    layout->addSpacing(96);
    layout->addWidget(m_stop);
    connect(m_snooze, &QPushButton::clicked, this, &PlainScreen::snooze);
    connect(m_stop, &QPushButton::clicked, this, &PlainScreen::dismiss);
}

PlainScreen::~PlainScreen() = default;

void PlainScreen::setAnswers(Answers *answers)
{
    m_answers = answers;
}

void PlainScreen::show(const Alarm &alarm)
{
    const auto known = std::find_if(m_alarms.begin(), m_alarms.end(), withCookie(alarm.cookie));
    if (known != m_alarms.end())
        *known = alarm;
    else
        m_alarms.append(alarm);
    refresh();
    m_answers->shown(alarm.cookie);
}

void PlainScreen::hide(quint32 cookie)
{
    m_alarms.removeIf(withCookie(cookie));
    refresh();
}

// Only an answer takes the screen away.
void PlainScreen::closeEvent(QCloseEvent *event)
{
    event->ignore();
    snooze();
}

void PlainScreen::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        snooze();
    else
        QWidget::keyPressEvent(event);
}

void PlainScreen::refresh()
{
    setVisible(!m_alarms.isEmpty());
    if (m_alarms.isEmpty())
        return;
    const auto &alarm = m_alarms.first();
    setWindowTitle(RingTexts::application());
    m_time->setText(RingTexts::due(alarm.due));
    m_title->setText(RingTexts::title(alarm.title));
    m_snooze->setText(RingTexts::snooze(alarm.snoozeSeconds));
    m_snooze->setVisible(alarm.snoozeSeconds > 0);
    m_stop->setText(RingTexts::stop());
    showFullScreen();
    raise();
    m_snooze->setFocus();
}

void PlainScreen::snooze()
{
    if (!m_alarms.isEmpty() && m_alarms.first().snoozeSeconds > 0)
        m_answers->snooze(m_alarms.first().cookie, m_alarms.first().snoozeSeconds);
}

void PlainScreen::dismiss()
{
    if (!m_alarms.isEmpty())
        m_answers->dismiss(m_alarms.first().cookie);
}

} // namespace Ringer
