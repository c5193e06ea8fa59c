// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/exception.h"

namespace Astel::Timed {

Exception::Exception(const QString &message)
    : m_message(message)
    , m_utf8(message.toUtf8())
{ }

} // namespace Astel::Timed
