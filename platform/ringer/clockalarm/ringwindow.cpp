// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringwindow.h"

#include "platform/ringer/clockalarm/ringpage.h"
#include "platform/ringer/texts/ringtexts.h"

#include <chrono>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

// Nobody reads and answers a screen faster.
constexpr std::chrono::milliseconds DeafTime{500};

bool isSnoozeKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
    case Qt::Key_Back:
    case Qt::Key_VolumeUp:
    case Qt::Key_VolumeDown:
    case Qt::Key_VolumeMute:
    case Qt::Key_PowerOff:
    case Qt::Key_PowerDown:
    case Qt::Key_Sleep:
    case Qt::Key_MediaPlay:
    case Qt::Key_MediaPause:
    case Qt::Key_MediaTogglePlayPause:
    case Qt::Key_MediaStop:
    case Qt::Key_MediaNext:
    case Qt::Key_MediaPrevious:
        return true;
    default:
        return false;
    }
}

bool isStopKey(const QKeyEvent *event)
{
    return (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && event->modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

RingWindow::RingWindow()
    : m_page(new RingPage)
{
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setWindowTitle(RingTexts::application());
    setStyleName(QStringLiteral("RingWindow"));
    connect(m_page, &RingPage::snoozePressed, this, &RingWindow::snooze);
    connect(m_page, &RingPage::stopPressed, this, &RingWindow::stop);
    connect(m_page, &RingPage::waitingChosen, this, &RingWindow::frontChosen);
    m_page->setStopGesture(chosenStopGesture());
    m_page->appear(this, Touch::SceneWindow::DestroyWhenDone);
}

RingWindow::~RingWindow() = default;

void RingWindow::setAlarms(const QList<Ringer::Alarm> &alarms)
{
    if (m_alarms.isEmpty() || m_alarms.constFirst().cookie != alarms.constFirst().cookie)
        m_deafness.setRemainingTime(DeafTime);
    m_alarms = alarms;
    m_page->setAlarms(alarms);
    viewport()->update();
}

void RingWindow::paintEvent(QPaintEvent *event)
{
    Window::paintEvent(event);
    if (!m_wasPainted)
        m_deafness.setRemainingTime(DeafTime);
    m_wasPainted = true;
    emit painted();
}

void RingWindow::mousePressEvent(QMouseEvent *event)
{
    if (takesAnswers())
        Window::mousePressEvent(event);
}

void RingWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (takesAnswers())
        Window::mouseDoubleClickEvent(event);
}

void RingWindow::keyPressEvent(QKeyEvent *event)
{
    const auto isAnswer = isSnoozeKey(event->key()) || isStopKey(event);
    if (!isAnswer && takesAnswers()) {
        Window::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!isAnswer || event->isAutoRepeat() || !takesAnswers())
        return;
    if (isStopKey(event))
        stop();
    else
        snooze(m_alarms.constFirst().snoozeSeconds);
}

void RingWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    snooze(m_alarms.constFirst().snoozeSeconds);
}

void RingWindow::snooze(int seconds)
{
    if (seconds > 0)
        emit snoozePressed(m_alarms.constFirst().cookie, seconds);
}

void RingWindow::stop()
{
    emit stopPressed(m_alarms.constFirst().cookie);
}
