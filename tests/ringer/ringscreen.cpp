// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/ringscreen.h"

#include "tests/support/places.h"

#include <QApplication>
#include <QPluginLoader>
#include <QTest>

namespace RingScreen {

Ringer::RingPlugin *load(QString *reason)
{
    QPluginLoader loader(Places::ringerPlugin("libclockalarm.so"));
    auto *plugin = qobject_cast<Ringer::RingPlugin *>(loader.instance());
    *reason = loader.errorString();
    return plugin;
}

Ringer::Alarm teaTime(quint32 cookie, int snoozeSeconds)
{
    return {cookie, QStringLiteral("Tea"), QDateTime::currentDateTimeUtc(), {}, snoozeSeconds};
}

QGraphicsView *window()
{
    for (auto *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            return qobject_cast<QGraphicsView *>(widget);
    }
    return nullptr;
}

bool waitForAnswers()
{
    return QTest::qWaitFor([] { return window() && window()->property("takesAnswers").toBool(); });
}

QGraphicsWidget *item(const QString &name)
{
    const auto items = window()->scene()->items();
    for (auto *each : items) {
        if (each->isWidget() && static_cast<QGraphicsWidget *>(each)->objectName() == name)
            return static_cast<QGraphicsWidget *>(each);
    }
    return nullptr;
}

QPoint placeOf(const QString &name)
{
    return window()->mapFromScene(item(name)->sceneBoundingRect().center());
}

void click(const QString &name)
{
    QTest::mouseClick(window()->viewport(), Qt::LeftButton, {}, placeOf(name));
}

void slideToStop(double part)
{
    const auto track = window()->mapFromScene(item("stop")->sceneBoundingRect()).boundingRect();
    const auto isMirrored = item("stop")->layoutDirection() == Qt::RightToLeft;
    const auto middle = track.height() / 2;
    const auto way = int(part * (track.width() - track.height()));
    const auto from = isMirrored ? track.right() - middle : track.left() + middle;
    const auto at
        = [&](int step) { return QPoint(from + (isMirrored ? -1 : 1) * way * step / 4, track.top() + middle); };
    QTest::mousePress(window()->viewport(), Qt::LeftButton, {}, at(0));
    for (int step = 1; step <= 4; ++step)
        QTest::mouseMove(window()->viewport(), at(step));
    QTest::mouseRelease(window()->viewport(), Qt::LeftButton, {}, at(4));
}

} // namespace RingScreen
