// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusAbstractAdaptor>

class ClockBackup;

/**
 * Puts a ClockBackup on the bus as "com.korvo.backupclient". Child of the participant and gone with it; GUI thread.
 * Every call is passed on by name and answered with what the participant answers.
 */
class backupclientAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.korvo.backupclient")
    Q_CLASSINFO("D-Bus Introspection",
                "  <interface name=\"com.korvo.backupclient\">\n"
                "    <method name=\"backupStarts\">\n"
                "      <arg direction=\"out\" type=\"y\" name=\"\"/>\n"
                "    </method>\n"
                "    <method name=\"backupFinished\">\n"
                "      <arg direction=\"out\" type=\"y\" name=\"\"/>\n"
                "    </method>\n"
                "    <method name=\"restoreStarts\">\n"
                "      <arg direction=\"out\" type=\"y\" name=\"\"/>\n"
                "    </method>\n"
                "    <method name=\"restoreFinished\">\n"
                "      <arg direction=\"out\" type=\"y\" name=\"\"/>\n"
                "    </method>\n"
                "  </interface>\n")

public:
    explicit backupclientAdaptor(ClockBackup *participant);

public slots:
    uchar backupFinished();
    uchar backupStarts();
    uchar restoreFinished();
    uchar restoreStarts();

private:
    uchar passOn(const char *method);
};
