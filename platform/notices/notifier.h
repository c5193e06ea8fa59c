// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <QList>
#include <QObject>
#include <QString>

namespace Notices {

/** What is shown to the user, in plain text. */
struct Notice
{
    struct Action
    {
        QString key; ///< unique on the whole desktop
        QString label;
    };

    enum class Urgency { Low, Critical };

    QString summary;
    QString body;
    QList<Action> actions;
    QString category;
    QString tag = {}; ///< a later notice of the same tag takes its place; empty: it stands by itself
    Urgency urgency = Urgency::Critical;
    bool isRinging = false; ///< makes its own sound, and goes only when it is closed
};

/** Whoever shows notices to the user. */
class Notifier : public QObject
{
    Q_OBJECT

public:
    /** Does not wait; "done" is called once, with whether the notice is shown. */
    virtual void show(const Notice &notice, const std::function<void(bool)> &done) = 0;
    /** Takes back the notice of a tag; no effect without one. */
    virtual void close(const QString &tag) = 0;
    virtual bool isPresent() const = 0;

signals:
    /** It was not there, and is now. */
    void appeared();
    /** The user chose an action, perhaps of a notice from before this program. */
    void chosen(const QString &key);
};

} // namespace Notices
