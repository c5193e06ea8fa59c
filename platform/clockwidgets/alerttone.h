// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

/// A tone that the user may change: its file, and what the user calls it. GUI thread only.
class AlertTone : public QObject
{
    Q_OBJECT

public:
    /// From a path or a file URL.
    explicit AlertTone(const QString &toneText, QObject *parent = nullptr);

    /// The path.
    QString fileName() const { return m_fileName; }
    /// The tone's title; made from the name of the file unless one was given.
    QString niceName() const { return m_niceName; }
    void setTone(const QString &fileName, const QString &niceName);

    /// The name of a tone that has no title.
    static QString niceNameOf(const QString &fileName);

Q_SIGNALS:
    void changed();

private:
    QString m_fileName;
    QString m_niceName;
};
