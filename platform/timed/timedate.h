// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace Astel::Timed {

/** The service on the system bus through which the time zone is set; it is heard while it runs, and never started. */
class Timedate : public QObject
{
    Q_OBJECT

public:
    explicit Timedate(QDBusConnection bus);

signals:
    /** Somebody set another time zone; without a name where the service does not tell it. */
    void zoneSet(const QByteArray &id);

private slots:
    void propertiesChanged(const QString &interface, const QVariantMap &changed, const QStringList &invalidated);
};

} // namespace Astel::Timed
