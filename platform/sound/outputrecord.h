// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace Sound {

/** How an output was before it was made audible. */
struct OutputBefore
{
    bool wasMuted = false;
    std::optional<uint> volume; ///< percent, before it was raised

    bool operator==(const OutputBefore &) const = default;
};

/** By sink. */
using OutputsBefore = QMap<QString, OutputBefore>;

/**
 * What is to be put back, written down where it outlives its program but not the session: whoever rings next puts back
 * what one that was killed has left. One for all programs of the session. A file that cannot be written is logged; then
 * nothing is remembered.
 */
namespace OutputRecord {

[[nodiscard]] OutputsBefore read();
void write(const OutputsBefore &outputs);

} // namespace OutputRecord

} // namespace Sound
