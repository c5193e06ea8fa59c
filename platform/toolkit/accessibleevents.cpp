// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessibleevents_p.h"

#include <QAccessible>

namespace Touch::AccessibleEvents {

namespace {

Listener current = nullptr;

} // namespace

void setListener(Listener listener)
{
    current = listener;
}

bool isListenedTo()
{
    return current || QAccessible::isActive();
}

void tell(QAccessibleEvent *event)
{
    if (current)
        current(event);
    else if (QAccessible::isActive())
        QAccessible::updateAccessibility(event);
}

} // namespace Touch::AccessibleEvents
