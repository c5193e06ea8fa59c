// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/participants.h"

#include "platform/backup/messages.h"
#include "platform/backup/places.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDir>
#include <QMap>
#include <QSettings>
#include <QStandardPaths>

namespace Backup {

namespace {

constexpr auto Interface = "com.korvo.backupclient";
constexpr auto Folder = "clock-backup/participants";

/** File names and paths; of files with the same name, the one in the user's
 * folder counts. */
QMap<QString, QString> participantFiles()
{
    QMap<QString, QString> files;
    const QStringList folders
        = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, Folder, QStandardPaths::LocateDirectory);
    for (const QString &folder : folders) {
        const QFileInfoList found = QDir(folder).entryInfoList({"*.conf"}, QDir::Files);
        for (const QFileInfo &file : found) {
            if (!files.contains(file.fileName()))
                files.insert(file.fileName(), file.filePath());
        }
    }
    return files;
}

QDBusMessage callOf(const Participant &participant, const QString &what)
{
    auto call = QDBusMessage::createMethodCall(participant.service, participant.path, Interface, what);
    // What does not run has nothing in hand that a backup could miss.
    call.setAutoStartService(false);
    return call;
}

bool isAway(QDBusError::ErrorType error)
{
    return error == QDBusError::ServiceUnknown || error == QDBusError::UnknownObject
        || error == QDBusError::Disconnected;
}

} // namespace

QList<Participant> installedParticipants()
{
    QList<Participant> participants;
    const QMap<QString, QString> files = participantFiles();
    for (const QString &path : files) {
        const QSettings file(path, QSettings::IniFormat);
        const auto value = [&](const char *key) { return file.value(QLatin1String("Participant/") + key); };
        const Participant participant{value("Name").toString(), value("Service").toString(), value("Path").toString(),
                                      value("Settings").toString(), value("Tones").toStringList()};
        if (participant.name.isEmpty() || participant.service.isEmpty() || participant.path.isEmpty()
            || (!participant.settings.isEmpty() && !staysWithin(participant.settings)))
            complain(QStringLiteral("%1 describes no participant, ignoring").arg(path));
        else
            participants.append(participant);
    }
    return participants;
}

Announcement::Announcement(const QList<Participant> &participants, Occasion occasion,
                           std::chrono::milliseconds patience)
    : m_occasion(occasion == Occasion::Backup ? "backup" : "restore")
    , m_patience(int(patience.count()))
{
    for (const Participant &participant : participants) {
        const Answer answer = tell(participant, m_occasion + "Starts");
        if (answer == Answer::Given)
            m_told.append(participant);
        else if (answer == Answer::Missing)
            m_silent.append(participant);
    }
}

Announcement::~Announcement()
{
    for (const Participant &participant : std::as_const(m_told))
        tell(participant, m_occasion + "Finished");
    // They have been waited for once.
    for (const Participant &participant : std::as_const(m_silent))
        QDBusConnection::sessionBus().send(callOf(participant, m_occasion + "Finished"));
    // What the bus answers comes behind what it was sent, which the end of the program would lose.
    if (!m_silent.isEmpty())
        QDBusConnection::sessionBus().interface()->isServiceRegistered(m_silent.first().service);
}

Announcement::Answer Announcement::tell(const Participant &participant, const QString &what) const
{
    const QDBusMessage reply = QDBusConnection::sessionBus().call(callOf(participant, what), QDBus::Block, m_patience);
    if (reply.type() == QDBusMessage::ReplyMessage) {
        if (const uint answer = reply.arguments().value(0).toUInt(); answer != 0)
            complain(QStringLiteral("%1 answers %2 with %3, going on").arg(participant.name, what).arg(answer));
        return Answer::Given;
    }
    const QDBusError error(reply);
    if (error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") || isAway(error.type()))
        return Answer::NotRunning;
    const bool hangs = error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout
        || error.type() == QDBusError::TimedOut;
    complain(hangs ? QStringLiteral("%1 does not answer %2, going on without it").arg(participant.name, what)
                   : QStringLiteral("%1 refuses %2 (%3), going on").arg(participant.name, what, error.message()));
    return Answer::Missing;
}

} // namespace Backup
