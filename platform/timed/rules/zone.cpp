// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rules/zone.h"

#include <algorithm>
#include <QDateTime>
#include <QHash>
#include <QTimeZone>

namespace Astel::Timed::Rules {

namespace {

// Transitions are read an era of 2^30 seconds, 34 years, at a time.
constexpr int EraBits = 30;

constexpr auto ZoneFolder = "/usr/share/zoneinfo/";

QDateTime utc(qint64 moment)
{
    return QDateTime::fromSecsSinceEpoch(moment, Qt::UTC);
}

QTimeZone::OffsetData transitionAfter(const QTimeZone &zone, qint64 moment)
{
    auto next = zone.nextTransition(utc(moment));
    // Qt finds nothing after exactly the last transition of the zone's table, where its closing rule takes
    // over.
    if (!next.atUtc.isValid())
        next = zone.nextTransition(utc(moment + 1));
    return next;
}

QList<Zone::Stretch> readEra(const QTimeZone &zone, qint64 begin, qint64 end)
{
    QList<Zone::Stretch> result;
    qint64 from = begin;
    while (from < end) {
        const auto next = transitionAfter(zone, from);
        const bool another = next.atUtc.isValid() && next.atUtc.toSecsSinceEpoch() > from;
        const qint64 to = another ? std::min(next.atUtc.toSecsSinceEpoch(), end) : end;
        result.append({from, to, zone.offsetFromUtc(utc(from)), zone.isDaylightTime(utc(from))});
        from = to;
    }
    return result;
}

} // namespace

struct Zone::Data
{
    QTimeZone zone;
    QHash<qint64, QList<Stretch>> eras;
};

Zone::Zone(const QTimeZone &zone)
    : m_data(std::make_shared<Data>(Data{zone, {}}))
{ }

std::optional<Zone> Zone::create(const QByteArray &id, QString *error)
{
    // Qt takes no name at all for the system's zone.
    if (const QTimeZone zone(id); zone.isValid() && !id.isEmpty())
        return Zone(zone);
    if (error)
        *error = QStringLiteral("unknown time zone \"%1\"").arg(QString::fromUtf8(id));
    return std::nullopt;
}

std::optional<Zone> Zone::local(QString *error)
{
    if (!qEnvironmentVariableIsSet("TZ"))
        return create(QTimeZone::systemTimeZoneId(), error);
    QByteArray id = qgetenv("TZ");
    if (id.startsWith(':'))
        id.remove(0, 1);
    if (id.startsWith(ZoneFolder))
        id.remove(0, int(qstrlen(ZoneFolder)));
    return create(id.isEmpty() ? "UTC" : id, error);
}

QByteArray Zone::id() const
{
    return m_data->zone.id();
}

Zone::Stretch Zone::stretchAt(qint64 moment) const
{
    return stretches(moment, moment).constFirst();
}

QList<Zone::Stretch> Zone::stretches(qint64 from, qint64 to) const
{
    QList<Stretch> result;
    for (qint64 number = from >> EraBits; number <= to >> EraBits; ++number) {
        const QList<Stretch> &all = era(number);
        auto stretch = std::upper_bound(all.begin(), all.end(), from,
                                        [](qint64 moment, const Stretch &other) { return moment < other.to; });
        for (; stretch != all.end() && stretch->from <= to; ++stretch)
            result.append(*stretch);
    }
    return result;
}

const QList<Zone::Stretch> &Zone::era(qint64 number) const
{
    auto found = m_data->eras.find(number);
    if (found == m_data->eras.end()) {
        const qint64 begin = number * (Q_INT64_C(1) << EraBits);
        found = m_data->eras.insert(number, readEra(m_data->zone, begin, begin + (Q_INT64_C(1) << EraBits)));
    }
    return *found;
}

} // namespace Astel::Timed::Rules
