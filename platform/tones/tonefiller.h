// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlconnectionoptions.h"

#include <QObject>
#include <QThread>

namespace Tones {

/**
 * Keeps the store of tones in step with the files: reads the titles of what is new or has changed, forgets what is gone,
 * and does so again when files change. Works in a thread of its own. A file that cannot be read has no title; a folder
 * that is missing is waited for. Owned by the program.
 */
class ToneFiller : public QObject
{
    Q_OBJECT

public:
    /** For the tones of the system and the user's music, into the user's store. */
    explicit ToneFiller(QObject *parent = nullptr);
    ToneFiller(const QStringList &folders, const QSparqlConnectionOptions &options, QObject *parent = nullptr);
    ~ToneFiller() override;

    /** Returns at once; no effect the second time. */
    void start();

Q_SIGNALS:
    /** The store says what the folders hold; "read" is how many files had to be read for that. */
    void filled(int read);
    /** The store cannot be filled; it is tried again when files change. */
    void failed(const QString &reason);

private:
    const QStringList m_folders;
    const QSparqlConnectionOptions m_options;
    QThread m_thread;
};

} // namespace Tones
