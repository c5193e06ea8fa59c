// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/flow/alarmscreen.h"

#include "app/references.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tests/flow/finger.h"
#include "tests/support/alarms.h"

#include <QProcess>
#include <QTest>

#include <algorithm>

namespace Flow {

namespace {

QPoint onPicker(const QPointF &point)
{
    return pointOf(picker(), point.x() / picker()->size().width(), point.y() / picker()->size().height());
}

void dragHandle(const QPointF &handle, double degrees)
{
    const QPointF centre = picker()->rect().center();
    const QPointF target = QTransform().translate(centre.x(), centre.y()).rotate(degrees).map(handle - centre);
    drag(onPicker(handle), onPicker(target));
}

bool waitForPicker()
{
    return QTest::qWaitFor([] { return picker() && !isMoving(); });
}

} // namespace

bool prepareWindow()
{
    return QTest::qWaitForWindowExposed(applicationWindow)
        && QProcess::execute("xdotool", {"windowfocus", QString::number(applicationWindow->winId())}) == 0
        && QTest::qWaitForWindowActive(applicationWindow);
}

bool startAfresh()
{
    const bool isClosed = QTest::qWaitFor([] {
        if (applicationWindow->topSceneWindow() != mainPage && !isMoving())
            applicationWindow->stepBack();
        return applicationWindow->topSceneWindow() == mainPage;
    });
    // Each change takes one row away; the alarms that were off told of none.
    return isClosed && Support::removeAllAlarms()
        && QTest::qWaitFor(
               [] {
                   if (!rows().isEmpty())
                       mainPage->resetContent();
                   return rows().isEmpty() && bannerTitle().isEmpty() && !isMoving();
               },
               15000);
}

QList<AlarmListItem *> rows()
{
    QList<AlarmListItem *> found;
    const auto items = applicationWindow->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *row = qobject_cast<AlarmListItem *>(item->toGraphicsObject());
        if (row && row->isVisible())
            found.append(row);
    }
    std::sort(found.begin(), found.end(),
              [](const auto *a, const auto *b) { return a->scenePos().y() < b->scenePos().y(); });
    return found;
}

AlarmListItem *rowTitled(const QString &title)
{
    const auto shown = rows();
    const auto row
        = std::find_if(shown.begin(), shown.end(), [&](const auto *item) { return item->subTitle() == title; });
    return row == shown.end() ? nullptr : *row;
}

QPoint switchOf(const AlarmListItem *row)
{
    const auto children = row->childItems();
    for (QGraphicsItem *child : children) {
        if (const auto *object = qobject_cast<Touch::Switch *>(child->toGraphicsObject()))
            return pointOf(object);
    }
    return pointOf(row, 0.9);
}

QString bannerTitle()
{
    const auto sceneWindows = applicationWindow->sceneWindows();
    for (const Touch::SceneWindow *sceneWindow : sceneWindows) {
        const auto *banner = qobject_cast<const Touch::Banner *>(sceneWindow);
        if (banner && banner->isOnDisplay())
            return banner->title();
    }
    return QString();
}

TimePicker *picker()
{
    return qobject_cast<TimePicker *>(itemNamed("timePicker"));
}

QTime pickedTime()
{
    return QTime(picker()->hours(), picker()->minutes());
}

void dragHourHandle(double degrees)
{
    dragHandle(picker()->hourHandle(), degrees);
}

void dragMinuteHandle(double degrees)
{
    dragHandle(picker()->minuteHandle(), degrees);
}

bool makeAlarm(const QString &title, double hourDegrees)
{
    tap(pointOf(itemNamed("newAlarmButton")));
    if (!waitForPicker())
        return false;
    tap(pointOf(itemNamed("AlarmNameInputField")));
    type(title);
    const auto *field = qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"));
    if (!field || !QTest::qWaitFor([&] { return field->text() == title; }))
        return false;
    const QTime before = pickedTime();
    dragHourHandle(hourDegrees);
    if (!QTest::qWaitFor([&] { return pickedTime().hour() != before.hour(); }))
        return false;
    tap(pointOf(itemNamed("positiveButton")));
    return QTest::qWaitFor([&] { return rowTitled(title) && !picker() && !isMoving(); });
}

} // namespace Flow
