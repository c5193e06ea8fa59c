// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/plainvalue_p.h"

#include <QDBusArgument>
#include <QDBusVariant>

namespace Context {

namespace {

QVariantMap plainMap(const QVariantMap &map)
{
    QVariantMap result;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        result.insert(entry.key(), plainValue(entry.value()));
    return result;
}

QVariantList plainList(const QVariantList &list)
{
    QVariantList result;
    for (const QVariant &element : list)
        result.append(plainValue(element));
    return result;
}

QVariantMap readMap(const QDBusArgument &argument)
{
    QVariantMap result;
    argument.beginMap();
    while (!argument.atEnd()) {
        argument.beginMapEntry();
        const QString key = plainValue(argument.asVariant()).toString();
        result.insert(key, plainValue(argument.asVariant()));
        argument.endMapEntry();
    }
    argument.endMap();
    return result;
}

QVariantList readArray(const QDBusArgument &argument)
{
    QVariantList result;
    argument.beginArray();
    while (!argument.atEnd())
        result.append(plainValue(argument.asVariant()));
    argument.endArray();
    return result;
}

QVariantList readStructure(const QDBusArgument &argument)
{
    QVariantList result;
    argument.beginStructure();
    while (!argument.atEnd())
        result.append(plainValue(argument.asVariant()));
    argument.endStructure();
    return result;
}

QVariant readArgument(const QDBusArgument &argument)
{
    switch (argument.currentType()) {
    case QDBusArgument::MapType:
        return readMap(argument);
    case QDBusArgument::ArrayType:
        return readArray(argument);
    case QDBusArgument::StructureType:
        return readStructure(argument);
    default:
        return plainValue(argument.asVariant());
    }
}

} // namespace

QVariant plainValue(const QVariant &value)
{
    const QMetaType type = value.metaType();
    if (type == QMetaType::fromType<QDBusArgument>())
        return readArgument(value.value<QDBusArgument>());
    if (type == QMetaType::fromType<QDBusVariant>())
        return plainValue(value.value<QDBusVariant>().variant());
    if (type == QMetaType::fromType<QVariantMap>())
        return plainMap(value.toMap());
    if (type == QMetaType::fromType<QVariantList>())
        return plainList(value.toList());
    return value;
}

} // namespace Context
