// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

/** A program that takes part in backups and notes what it is told. */
class NotingParticipant : public QDBusVirtualObject
{
    Q_OBJECT

public:
    enum class Manner { Answers, Warns, Refuses, Hangs };

    /** The notes, "NAME: backupStarts" and so on, go to a list that several may share. */
    NotingParticipant(const QString &name, QStringList &notes, Manner manner = Manner::Answers);
    ~NotingParticipant() override;

    /** Writes the file by which it takes part. */
    bool enlist(const QString &settings = {}) const;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QString m_name;
    QStringList &m_notes;
    Manner m_manner;
    QDBusConnection m_bus;
};
