// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

#include <chrono>

namespace Backup {

/** A program that takes part in backups; docs/backup.md describes the file by
 * which it says so. */
struct Participant
{
    QString name; ///< for people
    QString service;
    QString path;
    QString settings;     ///< its settings file, below the folder of settings; empty
                          ///< where it has none
    QStringList toneKeys; ///< of those settings that name a tone
};

/** In the order in which they are told; what is wrong with a file is told on
 * standard error, and the file ignored. */
QList<Participant> installedParticipants();

/**
 * Tells the participants that something starts and, at its end, that it is
 * finished: each in its turn, waiting for its answer. One that does not run is
 * left alone; one that hangs or fails is told on standard error and does not
 * hold up the others.
 */
class Announcement
{
public:
    enum class Occasion { Backup, Restore };

    /** "patience": how long to wait for an answer. */
    Announcement(const QList<Participant> &participants, Occasion occasion, std::chrono::milliseconds patience);
    ~Announcement();
    Q_DISABLE_COPY(Announcement)

private:
    enum class Answer { Given, Missing, NotRunning };
    Answer tell(const Participant &participant, const QString &what) const;

    QString m_occasion;
    int m_patience; ///< milliseconds
    QList<Participant> m_told;
    QList<Participant> m_silent; ///< told, but gave no answer
};

} // namespace Backup
