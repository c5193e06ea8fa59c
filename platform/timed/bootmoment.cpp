// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/bootmoment.h"

#include "platform/timed/clock.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/schedule.h"

#include <cerrno>
#include <QFile>
#include <QSaveFile>
#include <unistd.h>
#include <utility>

namespace Astel::Timed {

namespace {

// Both answer what went wrong, or nothing.

QString writeFile(const QString &path, qint64 moment)
{
    const QByteArray line = QByteArray::number(moment / MillisecondsOfSecond) + '\n';
    QSaveFile file(path);
    // What commit() itself cannot write it does not tell.
    if (file.open(QIODevice::WriteOnly) && file.write(line) == line.size() && file.flush() && file.commit())
        return {};
    return QStringLiteral("%1: %2").arg(path, file.errorString());
}

QString removeFile(const QString &path, const QString &folder)
{
    if (access(QFile::encodeName(folder).constData(), W_OK) == 0 && (QFile::remove(path) || !QFile::exists(path)))
        return {};
    return QStringLiteral("%1: %2").arg(folder, qt_error_string(errno));
}

} // namespace

BootMoment::BootMoment(const EventBook &book, const Schedule &schedule, const Clock &clock, const QString &folder,
                       const QString &clocks)
    : m_book(book)
    , m_clock(clock)
    , m_folder(folder)
    , m_wakeAlarm(clocks + "/rtc0/wakealarm")
{
    // Many changes at once are written once, and nobody waits for it.
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &BootMoment::update);
    connect(&schedule, &Schedule::changed, &m_soon, qOverload<>(&QTimer::start));
}

BootMoment::~BootMoment()
{
    if (m_soon.isActive())
        update();
}

void BootMoment::update()
{
    m_soon.stop();
    const auto moment = next();
    if (m_known && moment == m_written)
        return;
    write(moment);
}

QVariantMap BootMoment::facts() const
{
    const QString reason = obstacle();
    QVariantMap facts{{"boot_ready", reason.isEmpty()}, {"boot_reason", reason}};
    if (const auto moment = next())
        facts.insert("boot_moment", toNanoseconds(*moment));
    return facts;
}

std::optional<qint64> BootMoment::next() const
{
    std::optional<qint64> first;
    for (const auto &[cookie, event] : m_book.events()) {
        const auto moment = event.moment();
        if (event.has(Wire::Boot) && moment && *moment > m_clock.now() && (!first || *moment < *first))
            first = moment;
    }
    return first;
}

QString BootMoment::obstacle() const
{
    if (m_problem.isEmpty() && !QFile::exists(m_wakeAlarm))
        return QStringLiteral("no hardware clock can turn the device on");
    return m_problem;
}

void BootMoment::write(std::optional<qint64> moment)
{
    m_written = moment;
    const QString path = m_folder + '/' + QString::number(getuid());
    m_problem = moment ? writeFile(path, *moment) : removeFile(path, m_folder);
    m_known = m_problem.isEmpty();
    // The facts always say so; the log says it once until it is mended.
    if (m_problem.isEmpty())
        m_warned = false;
    else if (moment && !std::exchange(m_warned, true))
        qCWarning(lcTimed, "no alarm turns the device on: %ls", qUtf16Printable(m_problem));
}

} // namespace Astel::Timed
