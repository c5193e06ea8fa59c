// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Prints how long the list of alarms takes to be read from the daemon and shown, with 10, 100 and 1,000 alarms; how long
// after a save its row is there; and what the slowest frames take when 500 alarms are scrolled through.
#include "alarms/qmalarm.h"
#include "platform/timedclient/interface.h"
#include "platform/timedclient/wallclock.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"

#include <algorithm>
#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTextStream>

namespace {

constexpr int runs = 9;
constexpr int scrolledRows = 500;
constexpr int mostRows = 1000;
constexpr int scrollStep = 40; ///< pixels a frame

/** Listens to the daemon as the main page does, by which the bus tells at once who owns the daemon's name. */
class Listener : public QObject
{
    Q_OBJECT

public slots:
    void timeChanged(const Astel::Timed::WallClock::Info &, bool) { }
};

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void report(const QString &what, QList<double> values)
{
    std::sort(values.begin(), values.end());
    QTextStream(stdout) << QString("%1 shortest %2 ms, median %3 ms, 99 % %4 ms, longest %5 ms\n")
                               .arg(what, -36)
                               .arg(values.first(), 0, 'f', 1)
                               .arg(values.at(values.size() / 2), 0, 'f', 1)
                               .arg(values.at(values.size() * 99 / 100), 0, 'f', 1)
                               .arg(values.last(), 0, 'f', 1);
}

/** Adds switched-off alarms, of which no notification comes in between; every second one repeats. */
void fillUp(int &stored, int count)
{
    const QList<int> workdays{1, 2, 3, 4, 5};
    for (; stored < count; ++stored) {
        Support::addSwitchedOffAlarm(QTime(stored / 60 % 24, stored % 60), QString("Alarm number %1").arg(stored),
                                     stored % 2 ? workdays : QList<int>());
    }
}

void paintNow(AlarmSection &section)
{
    QCoreApplication::sendPostedEvents();
    section.window()->viewport()->repaint();
}

void measureLoading(AlarmSection &section, int count)
{
    QList<double> first;
    QList<double> again;
    for (int run = 0; run < runs; ++run) {
        section.openAtOnce();
        // Nothing has been read yet, or it is read anew: the rows are counted from none.
        section.model()->removeRows(0, section.model()->rowCount());
        QElapsedTimer timer;
        timer.start();
        section.widget()->updateContent();
        paintNow(section);
        first.append(milliseconds(timer));
        timer.start();
        section.widget()->updateContent();
        paintNow(section);
        again.append(milliseconds(timer));
    }
    report(QString("first load of %1 alarms").arg(count), first);
    report(QString("reload of %1 alarms").arg(count), again);
}

/** From the call that stores an alarm to the painted list with its row, which the daemon's notification brings. */
void measureSaving(AlarmSection &section, int count)
{
    QList<double> times;
    for (int run = 0; run < runs; ++run) {
        const int before = section.model()->rowCount();
        QElapsedTimer timer;
        timer.start();
        const quint32 cookie = Support::addAlarm(QTime(4, 30), "Saved");
        while (section.model()->rowCount() == before && timer.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        paintNow(section);
        times.append(milliseconds(timer));
        Clock::QmAlarm().deleteEvent(cookie);
        while (section.model()->rowCount() > before && timer.elapsed() < 20000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    report(QString("save to row among %1 alarms").arg(count), times);
}

void measureScrolling(AlarmSection &section)
{
    QList<double> frames;
    Touch::PannableViewport *viewport = section.viewport();
    paintNow(section);
    for (double y = 0; y < viewport->range().y(); y += scrollStep) {
        QElapsedTimer timer;
        timer.start();
        viewport->setPosition({0, y});
        paintNow(section);
        frames.append(milliseconds(timer));
    }
    report(QString("a frame of scrolling %1 alarms").arg(scrolledRows), frames);
}

} // namespace

/** bench_alarmlist [ALARMS]: with up to so many alarms. */
int main(int argc, char **argv)
{
    // As the clock does.
    qputenv("QT_NO_THREADED_GLIB", "1");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int most = arguments.size() > 1 ? arguments[1].toInt() : mostRows;
    QLoggingCategory::setFilterRules("*.debug=false");
    AlarmSection section;
    Listener listener;
    if (!section.start() || !section.open())
        return 1;
    Astel::Timed::Interface timed;
    if (!timed.settings_changed_connect(&listener, SLOT(timeChanged(const Astel::Timed::WallClock::Info &, bool))))
        return 1;
    int stored = 0;
    for (const int count : {10, 100, scrolledRows, mostRows}) {
        if (count > most)
            break;
        fillUp(stored, count);
        measureLoading(section, count);
        measureSaving(section, count);
        if (count == scrolledRows)
            measureScrolling(section);
    }
    return 0;
}
#include "bench_alarmlist.moc"
