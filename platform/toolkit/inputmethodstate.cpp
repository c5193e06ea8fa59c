// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/inputmethodstate.h"

namespace Touch {

namespace {

QString keyOf(const QString &target, const QString &item, const QString &attribute)
{
    return target + QLatin1Char('/') + item + QLatin1Char('/') + attribute;
}

} // namespace

InputMethodState::InputMethodState() = default;

InputMethodState::~InputMethodState() = default;

InputMethodState &InputMethodState::instance()
{
    static InputMethodState state;
    return state;
}

int InputMethodState::registerAttributeExtension(const QString &fileName)
{
    m_extensions.insert(++m_lastId, {fileName, {}});
    return m_lastId;
}

void InputMethodState::unregisterAttributeExtension(int id)
{
    m_extensions.remove(id);
}

void InputMethodState::setExtendedAttribute(int id, const QString &target, const QString &item,
                                            const QString &attribute, const QVariant &value)
{
    const auto extension = m_extensions.find(id);
    if (extension == m_extensions.end())
        return;
    QVariant &stored = extension->attributes[keyOf(target, item, attribute)];
    if (stored == value)
        return;
    stored = value;
    emit extendedAttributeChanged(id, target, item, attribute, value);
}

QVariant InputMethodState::extendedAttribute(int id, const QString &target, const QString &item,
                                             const QString &attribute) const
{
    return m_extensions.value(id).attributes.value(keyOf(target, item, attribute));
}

Qt::EnterKeyType InputMethodState::enterKeyType(int id) const
{
    const QVariant label
        = extendedAttribute(id, QStringLiteral("/keys"), QStringLiteral("actionKey"), QStringLiteral("label"));
    return label.toString().isEmpty() ? Qt::EnterKeyDefault : Qt::EnterKeyDone;
}

} // namespace Touch
