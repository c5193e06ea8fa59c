// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/action.h"

namespace Touch {

Action::Action(QObject *parent)
    : QAction(parent)
{ }

Action::Action(const QString &text, QObject *parent)
    : QAction(text, parent)
{ }

Action::~Action() = default;

void Action::setLocation(int location)
{
    if (m_location == location)
        return;
    m_location = location;
    emit changed();
}

} // namespace Touch
