// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/storefolder.h"

#include <QFile>
#include <QFileInfo>
#include <sys/mount.h>

using namespace Astel::Timed;

namespace {

constexpr auto Readable = QFile::ReadOwner | QFile::ExeOwner;

} // namespace

AlarmEvent stored(quint32 cookie, const QString &title)
{
    Wire::Event wire;
    wire.ticker = Now / 1000 + 3600;
    wire.flags = Wire::AllFlags;
    wire.timeoutSnooze = 300;
    wire.maximalTimeoutSnoozeCounter = 4;
    wire.attributes = {{"TITLE", title}, {"empty", ""}, {"quotes", "'\"\\\n\u2603"}};
    wire.recurrences = {{1u << 23, Wire::AllMinutes, 0x7f, Wire::AllDaysOfMonth, Wire::AllMonths, true}, {}};
    wire.buttons = {{0, {{"text", "Stop"}}}, {600, {}}};
    return AlarmEvent(cookie, wire, {State::Snoozed, Now + 5, Now, Now - 1000, 2});
}

std::unique_ptr<SqliteStore> StoreFolder::open() const
{
    auto store = SqliteStore::create(path(), Now);
    return store ? std::move(*store) : nullptr;
}

bool StoreFolder::overwrite(const QString &path, qint64 offset, const QByteArray &bytes)
{
    QFile target(path);
    return target.open(QIODevice::ReadWrite) && target.seek(offset) && target.write(bytes) == bytes.size();
}

ReadOnlyDisk::ReadOnlyDisk(const QString &path)
    : m_path(QFile::encodeName(path))
{
    // Permissions do not stop root, who may mount instead.
    m_mounted = mount(m_path, m_path, nullptr, MS_BIND, nullptr) == 0
        && mount(nullptr, m_path, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    if (!m_mounted)
        QFile::setPermissions(path, Readable);
    const QString probe = QFileInfo(path).isDir() ? path + "/probe" : path;
    m_readOnly = !QFile(probe).open(QIODevice::WriteOnly | QIODevice::Append);
}

ReadOnlyDisk::~ReadOnlyDisk()
{
    if (m_mounted)
        umount2(m_path, MNT_DETACH);
    else
        QFile::setPermissions(QFile::decodeName(m_path), Readable | QFile::WriteOwner);
}
