// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/publishedvalue_p.h"

PublishedValue::PublishedValue(const QVariant &initial)
    : m_value(initial)
{
    // Qt DBus registers its own types late; the adaptor relays no signal with one that is not known yet.
    qRegisterMetaType<QDBusVariant>();
}

QDBusVariant PublishedValue::get() const
{
    return QDBusVariant(m_value);
}

void PublishedValue::set(const QVariant &value)
{
    m_value = value;
    emit changed(QDBusVariant(value));
}
