// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// bench-list [SECONDS]: flicks a list of 1,000 rows for so long, ten seconds unless given, in a window of 480 x 854 and
// prints what the frames took and how many cells there were at most.
#include "bench/toolkit/framemeter.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "tools/gallery/gallery.h"
#include "tools/gallery/rows.h"

#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr int usualDuration = 10; ///< of the measurement, in seconds
constexpr int moveTime = 8;
constexpr int movesInFlick = 8;
constexpr int ticksBetweenFlicks = 80;
constexpr int flicksOneWay = 5;
constexpr int stride = 34; ///< pixels between two moves of the finger

/** A finger that flicks a window up and down for ever. */
class Finger : public QObject
{
    Q_OBJECT

public:
    explicit Finger(Touch::Window *window)
        : m_window(window)
    {
        startTimer(moveTime, Qt::PreciseTimer);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        const int tick = m_tick++ % ticksBetweenFlicks;
        const bool isUpwards = (m_tick / ticksBetweenFlicks / flicksOneWay) % 2 == 0;
        const int way = stride * qMin(tick, movesInFlick);
        const QPoint place(240, isUpwards ? 780 - way : 450 + way);
        if (tick == 0)
            send(QEvent::MouseButtonPress, place);
        else if (tick <= movesInFlick)
            send(QEvent::MouseMove, place);
        else if (tick == movesInFlick + 1)
            send(QEvent::MouseButtonRelease, place);
    }

private:
    void send(QEvent::Type type, const QPoint &place)
    {
        QWidget *target = m_window->viewport();
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, target->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(quint64(m_tick) * moveTime);
        QCoreApplication::sendEvent(target, &event);
    }

    Touch::Window *m_window;
    int m_tick = 0;
};

int cellCount(const Touch::List &list)
{
    const QList<QGraphicsItem *> items = list.childItems();
    return int(items.size());
}

void report(const QList<double> &frames, int cells)
{
    if (frames.isEmpty())
        return;
    const auto percentile = [&frames](int percent) { return frames[(frames.size() - 1) * percent / 100]; };
    QTextStream(stdout) << frames.size() << " frames: median " << percentile(50) << " ms, 99th percentile "
                        << percentile(99) << " ms, longest " << frames.constLast() << " ms; at most " << cells
                        << " cells" << Qt::endl;
}

} // namespace

int main(int argc, char **argv)
{
    FrameMeter application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int duration = arguments.size() > 1 ? arguments[1].toInt() : usualDuration;
    Touch::ApplicationWindow window;
    window.resize(480, 854);
    Gallery::ListPage page;
    page.appear(&window);
    window.show();

    int cells = 0;
    QObject::connect(&application, &FrameMeter::framePainted, &page,
                     [&] { cells = qMax(cells, cellCount(*page.list)); });
    const Finger finger(&window);
    QTimer::singleShot(1000, &window, [&] { application.measure(window.viewport()); });
    QTimer::singleShot(1000 * (1 + duration), &application, &QApplication::quit);
    const int result = QApplication::exec();
    application.measure(nullptr);
    report(application.frames(), cells);
    return result;
}

#include "listflick.moc"
