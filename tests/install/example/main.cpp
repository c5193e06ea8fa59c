// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <cstdio>
#include <platform/context/contextproperty.h>
#include <platform/timedclient/event.h>
#include <platform/timedclient/interface.h>
#include <platform/toolkit/application.h>
#include <platform/toolkit/label.h>
#include <QDateTime>

// Sets an alarm in an hour, and shows and prints the cookies of those ahead.
int main(int argc, char **argv)
{
    Touch::Application application(argc, argv, "example", nullptr);
    Touch::Label label;
    ContextProperty ahead("Alarm.Trigger");
    QObject::connect(&ahead, &ContextProperty::valueChanged, &application, [&] {
        label.setText("The next alarms: " + QStringList(ahead.value().toMap().keys()).join(' '));
        std::puts(qPrintable(label.text()));
        QCoreApplication::quit();
    });
    Astel::Timed::Event event;
    event.setTicker(QDateTime::currentSecsSinceEpoch() + 3600);
    Astel::Timed::Interface().add_event(event).waitForFinished();
    ahead.subscribe();
    return QCoreApplication::exec();
}
