// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/participant.h"

#include "tests/backup/household.h"

#include <QStandardPaths>

namespace {

QString serviceOf(const QString &name)
{
    return "org.example." + name;
}

} // namespace

NotingParticipant::NotingParticipant(const QString &name, QStringList &notes, Manner manner)
    : m_name(name)
    , m_notes(notes)
    , m_manner(manner)
    , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
{
    m_bus.registerVirtualObject("/part", this);
    m_bus.registerService(serviceOf(name));
}

NotingParticipant::~NotingParticipant()
{
    m_bus.unregisterObject("/part");
    QDBusConnection::disconnectFromBus(m_name);
}

bool NotingParticipant::enlist(const QString &settings) const
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return write(folder + "/clock-backup/participants/" + serviceOf(m_name) + ".conf",
                 QStringLiteral("[Participant]\nName=%1\nService=%2\nPath=/part\nSettings=%3\n")
                     .arg(m_name, serviceOf(m_name), settings)
                     .toUtf8());
}

bool NotingParticipant::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    m_notes.append(m_name + ": " + message.member());
    switch (m_manner) {
    case Manner::Answers:
        return connection.send(message.createReply(QVariant::fromValue(uchar(0))));
    case Manner::Warns:
        return connection.send(message.createReply(QVariant::fromValue(uchar(3))));
    case Manner::Refuses:
        return connection.send(message.createErrorReply("org.example.Error.Busy", "busy now"));
    case Manner::Hangs:
        break;
    }
    return true;
}
