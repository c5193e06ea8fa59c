// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

namespace Ringer {

/**
 * Which tones an alarm tries, best first: its own, the system's default alert tone, the tone that ships with us, and
 * beeps that need nothing. A tone that was chosen to be silent stays the only one. Reads the profile files each time it is asked.
 */
class ToneOrder
{
public:
    explicit ToneOrder(const QString &profileFolder = QStringLiteral("/etc/profiled"));

    /** Never empty, without repetition; "eventTone" is a path or a file URL, or empty. */
    [[nodiscard]] QStringList tones(const QString &eventTone) const;

private:
    [[nodiscard]] QString defaultAlertTone() const;

    QString m_profileFolder;
};

} // namespace Ringer
