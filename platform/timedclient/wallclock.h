// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusArgument>
#include <QMetaType>
#include <QString>

namespace Astel::Timed::WallClock {

/** The daemon's wall clock settings, as its settings-changed signal carries them. */
struct Info
{
    QString zone; ///< IANA identifier, "Europe/Berlin"
    qint32 secondsEastOfUtc = 0;
    bool summerTime = false;

    bool operator==(const Info &) const = default;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Info &info);
const QDBusArgument &operator>>(const QDBusArgument &argument, Info &info);

} // namespace Astel::Timed::WallClock

Q_DECLARE_METATYPE(Astel::Timed::WallClock::Info)
