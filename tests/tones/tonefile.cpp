// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/tones/tonefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Support {

namespace {

// Seven bits a byte.
QByteArray tagSize(qsizetype size)
{
    QByteArray bytes;
    for (const int shift : {21, 14, 7, 0})
        bytes += char((size >> shift) & 0x7f);
    return bytes;
}

} // namespace

bool writeTone(const QString &path, const QString &title)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (!title.isEmpty()) {
        const auto text = '\x03' + title.toUtf8();
        const auto frame = "TIT2" + tagSize(text.size()) + QByteArray(2, '\0') + text;
        file.write("ID3\x04" + QByteArray(2, '\0') + tagSize(frame.size()) + frame);
    }
    return file.write(QByteArray(2000, '\0')) == 2000;
}

} // namespace Support
