// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QString>

namespace Astel::Timed {

namespace Wire {
struct Event;
}

/** An event as a JSON text, as it is stored. */
QString encodeEvent(const Wire::Event &event);
/** Nothing where the text is not one of encodeEvent(). */
std::optional<Wire::Event> decodeEvent(const QString &text);

} // namespace Astel::Timed
