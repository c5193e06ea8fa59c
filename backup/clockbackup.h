// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

/**
 * The application's part in a backup or a restore: it acknowledges each step with 0 and prepares nothing, since the
 * alarms live in the alarm daemon and the preferences in a plain file. GUI thread; cannot fail.
 */
class ClockBackup : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

public slots:
    uchar backupStarts();
    uchar backupFinished();
    uchar restoreStarts();
    uchar restoreFinished();

signals:
    /** Kept for a restore that would need a fresh start; nothing emits it. */
    void shouldQuit();
};
