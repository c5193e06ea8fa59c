// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/forgery.h"

#include "platform/backup/tar.h"

#include <QCryptographicHash>

QByteArray forged(const QByteArray &backup, const QByteArray &member,
                  const std::function<QByteArray(const QByteArray &)> &change)
{
    QList<Backup::TarMember> members = *Backup::readTar(backup);
    members.removeLast();
    QByteArray sums;
    for (Backup::TarMember &each : members) {
        if (each.name == member)
            each.content = change(each.content);
        const QByteArray sum = QCryptographicHash::hash(each.content, QCryptographicHash::Sha256).toHex();
        sums += sum + "  " + each.name + '\n';
    }
    members.append({"SHA256SUMS", sums});
    return Backup::writeTar(members);
}
