// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Opens the editor for a new alarm and its options sheet for the first time in a window of 480 x 854, drags the minute
// round the dial for five seconds, and prints how long it takes to the first picture of each, and what the frames took.
#include "alarms/qmalarmevent.h"
#include "bench/toolkit/framemeter.h"
#include "data/clockdata.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/theme.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>
#include <QtMath>

#include <functional>

namespace {

constexpr int UsualDragTime = 5; ///< in seconds
constexpr int MoveTime = 8;
constexpr double DegreesOfMove = 1.1; ///< a finger that sets single minutes

/** Tells when a widget has been painted, and the picture been handed on. */
class PaintWatch : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, &PaintWatch::painted);
        return false;
    }

signals:
    void painted();
};

/** In milliseconds, from now until a window that is opened has been painted. */
double timeToPicture(const std::function<Touch::Window *()> &open)
{
    QElapsedTimer time;
    time.start();
    Touch::Window *window = open();
    const PaintWatch watch(window->viewport());
    window->viewport()->update();
    QEventLoop loop;
    QObject::connect(&watch, &PaintWatch::painted, &loop, &QEventLoop::quit);
    loop.exec();
    return double(time.nsecsElapsed()) / 1e6;
}

/** A finger that drags the minute's handle round and round. */
class Finger : public QObject
{
    Q_OBJECT

public:
    Finger(Touch::Window *window, TimePicker *picker)
        : m_window(window)
        , m_picker(picker)
        , m_radius(QLineF(picker->rect().center(), picker->minuteHandle()).length())
        , m_angle(picker->minutes() * 6)
    {
        send(QEvent::MouseButtonPress);
        startTimer(MoveTime, Qt::PreciseTimer);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_angle += DegreesOfMove;
        send(QEvent::MouseMove);
    }

private:
    void send(QEvent::Type type)
    {
        const double radians = qDegreesToRadians(m_angle);
        const QPointF offset(m_radius * qSin(radians), -m_radius * qCos(radians));
        const QPointF place = m_window->mapFromScene(m_picker->mapToScene(m_picker->rect().center() + offset));
        QWidget *target = m_window->viewport();
        QMouseEvent event(type, place, target->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        m_time += MoveTime;
        event.setTimestamp(m_time);
        QCoreApplication::sendEvent(target, &event);
    }

    Touch::Window *m_window;
    TimePicker *m_picker;
    const double m_radius;
    double m_angle;
    quint64 m_time = 1000;
};

TimePicker *pickerIn(QGraphicsItem *item)
{
    if (auto *picker = qobject_cast<TimePicker *>(item->toGraphicsObject()))
        return picker;
    const auto children = item->childItems();
    for (QGraphicsItem *child : children) {
        if (TimePicker *found = pickerIn(child))
            return found;
    }
    return nullptr;
}

void dragDial(FrameMeter &application, Touch::Window &window, int seconds)
{
    const Finger finger(&window, pickerIn(SettingAlarmPage::instance()));
    application.measure(window.viewport());
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    application.measure(nullptr);
}

Touch::Window *optionsWindow()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<Touch::ApplicationWindow *>(widget);
        if (window && window->chainedTo() && window->isVisible())
            return window;
    }
    qFatal("the options have no window");
}

void report(const char *what, const QList<double> &frames)
{
    if (frames.isEmpty())
        return;
    const auto percentile = [&frames](int percent) { return frames[(frames.size() - 1) * percent / 100]; };
    QTextStream(stdout) << what << ": " << frames.size() << " frames, median " << percentile(50)
                        << " ms, 99th percentile " << percentile(99) << " ms, longest " << frames.constLast() << " ms"
                        << Qt::endl;
}

} // namespace

/** bench-editor [SECONDS]: drags the dial for so long. */
int main(int argc, char **argv)
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    FrameMeter application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    initClockData();
    QString error;
    if (!Touch::Theme::instance().load(":/theme/clock.json", &error))
        qFatal("%s", qPrintable(error));
    Touch::Locale locale;
    locale.installTrCatalog("clock");
    Touch::Locale::setDefault(locale);
    Touch::ApplicationWindow window;
    window.resize(480, 854);
    Touch::ApplicationPage page;
    page.appear(&window);
    const double start = timeToPicture([&] {
        window.show();
        return &window;
    });
    const double editor = timeToPicture([&] {
        SettingAlarmPage::instance()->loadAlarm(Clock::QmAlarmEvent::NotStored, QTime(), {}, {}, true, 10);
        SettingAlarmPage::instance()->appear(&window);
        return &window;
    });
    QTextStream(stdout) << "an empty page: " << start << " ms\nthe editor: " << editor << " ms" << Qt::endl;
    dragDial(application, window, arguments.size() > 1 ? arguments[1].toInt() : UsualDragTime);
    report("dragging the minute", application.frames());
    const double options = timeToPicture([] {
        SettingAlarmPage::instance()->displayOptionsPage();
        return optionsWindow();
    });
    QTextStream(stdout) << "the options sheet: " << options << " ms" << Qt::endl;
    SettingAlarmPage::instance()->resetContent();
    return 0;
}

#include "bench_editor.moc"
