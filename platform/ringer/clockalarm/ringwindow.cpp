// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringwindow.h"

#include "platform/ringer/clockalarm/ringpage.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace {

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
        return true;
    default:
        return false;
    }
}

} // namespace

RingWindow::RingWindow()
    : m_page(new RingPage)
{
    setWindowFlag(Qt::WindowStaysOnTopHint);
    //% "Clock"
    setWindowTitle(qtTrId("qtn_ring_window"));
    setStyleName(QStringLiteral("RingWindow"));
    connect(m_page, &RingPage::snoozePressed, this, &RingWindow::snooze);
    connect(m_page, &RingPage::stopPressed, this, &RingWindow::stop);
    m_page->appear(this, Touch::SceneWindow::DestroyWhenDone);
}

RingWindow::~RingWindow() = default;

void RingWindow::setAlarms(const QList<Ringer::Alarm> &alarms)
{
    m_alarms = alarms;
    m_page->setAlarms(alarms);
    viewport()->update();
}

void RingWindow::paintEvent(QPaintEvent *event)
{
    Window::paintEvent(event);
    emit painted();
}

void RingWindow::keyPressEvent(QKeyEvent *event)
{
    if (!isSnoozeKey(event->key())) {
        Window::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        snooze();
}

void RingWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    snooze();
}

void RingWindow::snooze()
{
    const auto front = m_alarms.constFirst();
    if (front.snoozeSeconds > 0)
        emit snoozePressed(front.cookie, front.snoozeSeconds);
}

void RingWindow::stop()
{
    emit stopPressed(m_alarms.constFirst().cookie);
}
