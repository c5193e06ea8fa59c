// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/tar.h"

#include <algorithm>

namespace Backup {

namespace {

constexpr qsizetype BlockSize = 512;
constexpr qsizetype NameSize = 100;
constexpr qsizetype SizeOffset = 124;
constexpr qsizetype ChecksumOffset = 148;
constexpr qsizetype MagicOffset = 257;
constexpr int SizeDigits = 11;
constexpr int IdDigits = 7;
const QByteArray Magic("ustar\00000", 8);

qsizetype padded(qsizetype size)
{
    return (size + BlockSize - 1) / BlockSize * BlockSize;
}

QByteArray octal(qint64 number, int digits)
{
    return QByteArray::number(number, 8).rightJustified(digits, '0');
}

QByteArray headerOf(const QByteArray &name, qint64 size)
{
    QByteArray header(BlockSize, '\0');
    const auto set = [&](qsizetype offset, const QByteArray &text) { header.replace(offset, text.size(), text); };
    set(0, name);
    set(NameSize, octal(0600, IdDigits));
    set(108, octal(0, IdDigits)); // owner
    set(116, octal(0, IdDigits)); // group
    set(SizeOffset, octal(size, SizeDigits));
    set(136, octal(0, SizeDigits)); // time
    set(156, "0");                  // a plain file
    set(MagicOffset, Magic);
    // The checksum is made with blanks in its place.
    set(ChecksumOffset, QByteArray(8, ' '));
    qint64 sum = 0;
    for (const char byte : std::as_const(header))
        sum += uchar(byte);
    set(ChecksumOffset, octal(sum, 6) + QByteArray("\0 ", 2));
    return header;
}

bool isZero(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == '\0'; });
}

Problem cutOff()
{
    return failure("it is cut off");
}

Problem damaged(qsizetype position)
{
    // The user cannot tell a damaged beginning from another kind of file either.
    return position == 0 ? failure("it is not a backup, or its beginning is damaged") : failure("it is damaged");
}

} // namespace

QByteArray writeTar(const QList<TarMember> &members)
{
    QByteArray result;
    for (const TarMember &member : members) {
        result += headerOf(member.name, member.content.size());
        result += member.content;
        result += QByteArray(padded(member.content.size()) - member.content.size(), '\0');
    }
    return result + QByteArray(2 * BlockSize, '\0');
}

Result<QList<TarMember>> readTar(const QByteArray &bytes)
{
    QList<TarMember> members;
    qsizetype position = 0;
    for (;;) {
        const QByteArray header = bytes.mid(position, BlockSize);
        if (header.size() < BlockSize)
            return position == 0 ? damaged(position) : cutOff();
        if (isZero(header))
            break;
        const QByteArray name = header.left(qMin(header.indexOf('\0'), NameSize));
        bool isNumber = false;
        const qint64 size = header.mid(SizeOffset, SizeDigits).toLongLong(&isNumber, 8);
        if (!isNumber || size < 0 || name.size() >= NameSize || header != headerOf(name, size))
            return damaged(position);
        const qsizetype begin = position + BlockSize;
        if (bytes.size() - begin < padded(size))
            return cutOff();
        if (!isZero(QByteArrayView(bytes).sliced(begin + size, padded(size) - size)))
            return damaged(position);
        members.append({name, bytes.mid(begin, size)});
        position = begin + padded(size);
    }
    if (bytes.size() - position < 2 * BlockSize)
        return cutOff();
    if (bytes.size() - position > 2 * BlockSize || !isZero(QByteArrayView(bytes).sliced(position)))
        return damaged(position);
    return members;
}

} // namespace Backup
