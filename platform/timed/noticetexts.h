// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Astel::Timed {

namespace Rules {
class Zone;
}

namespace Wire {
struct Event;
}

/** What notices say, in the user's language and formats; moments in milliseconds since the epoch. Main thread. */
namespace NoticeTexts {

/** Finds the texts and follows the user's settings; to be called once. Needs the application object. */
void install();

QString application();
/** One line, never empty. */
QString title(const Wire::Event &event);
/** The time of day by the wall clock of a zone. */
QString time(qint64 moment, const Rules::Zone &zone);
/** The day and the time by the wall clock of a zone. */
QString dayAndTime(qint64 moment, const Rules::Zone &zone);

} // namespace NoticeTexts

} // namespace Astel::Timed
