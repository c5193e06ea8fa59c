// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "bench/toolkit/framemeter.h"

#include <algorithm>
#include <QEvent>
#include <QWidget>

void FrameMeter::measure(QWidget *painted)
{
    m_painted = painted;
    m_busy = 0;
}

QList<double> FrameMeter::frames() const
{
    QList<double> sorted = m_frames;
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

bool FrameMeter::notify(QObject *receiver, QEvent *event)
{
    if (!m_painted)
        return QApplication::notify(receiver, event);
    m_hasPainted = m_hasPainted || (event->type() == QEvent::Paint && receiver == m_painted);
    // What an event sends on is part of its own time.
    if (m_depth++ == 0)
        m_clock.start();
    const bool isHandled = QApplication::notify(receiver, event);
    if (--m_depth > 0)
        return isHandled;
    m_busy += m_clock.nsecsElapsed();
    if (m_hasPainted) {
        m_frames.append(double(m_busy) / 1e6);
        m_busy = 0;
        m_hasPainted = false;
        emit framePainted();
    }
    return isHandled;
}
