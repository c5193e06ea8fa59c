// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QList>

class QWidget;

/**
 * An application that measures its frames: all the time that events have taken, of whatever kind, from the end of
 * one painting of a widget to the end of the next. Waiting for the next event does not count.
 */
class FrameMeter : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    /** Counts from now on, by the paintings of this widget; null stops it. */
    void measure(QWidget *painted);
    /** In milliseconds, sorted. */
    QList<double> frames() const;

    bool notify(QObject *receiver, QEvent *event) override;

signals:
    void framePainted();

private:
    QWidget *m_painted = nullptr;
    int m_depth = 0;
    qint64 m_busy = 0; ///< in nanoseconds
    bool m_hasPainted = false;
    QElapsedTimer m_clock;
    QList<double> m_frames;
};
