// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Sound {

/** How something would do as a tone. */
struct Probe
{
    enum Verdict {
        Heard,     ///< within the time in which a tone has to be heard
        Silent,    ///< it plays, but longer than that nothing can be heard
        Unplayable ///< missing, no file, or nothing that can be decoded in time
    };

    Verdict verdict = Heard;
    QString reason; ///< why it would not be heard, as the end of a sentence ("is missing"); empty when it would be
};

/**
 * Decodes the beginning of a file without sounding it. Blocks for two seconds at most; may be called from any thread.
 */
[[nodiscard]] Probe probeFile(const QString &path);

/** The same for the beeps, which need no file. */
[[nodiscard]] Probe probeBeeps();

} // namespace Sound
