// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"

#include "contextpropertyadaptor.h"
#include "platform/context/propertyaddress_p.h"
#include "platform/context/publishedvalue_p.h"

ContextPublisher::ContextPublisher(const QString &key, const QVariant &initial, const QDBusConnection &connection)
    : m_key(key)
    , m_connection(connection)
    , m_value(std::make_unique<PublishedValue>(initial))
{
    new ContextPropertyAdaptor(m_value.get());
    // The object first: whoever sees the name may read at once.
    m_published = m_connection.registerObject(Context::pathOf(key), m_value.get())
        && m_connection.registerService(Context::serviceOf(key));
}

ContextPublisher::~ContextPublisher()
{
    if (m_published)
        m_connection.unregisterService(Context::serviceOf(m_key));
    m_connection.unregisterObject(Context::pathOf(m_key));
}

void ContextPublisher::publish(const QVariant &value)
{
    m_value->set(value);
}
