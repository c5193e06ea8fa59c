// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/outputrecord.h"

#include "platform/sound/logging.h"

#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace Sound::OutputRecord {

namespace {

constexpr auto Muted = "muted";
constexpr auto Open = "open";
constexpr auto NoVolume = "-";

QString path()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/clock.outputs");
}

} // namespace

// A line for each: muted or open, percent or nothing, and the sink, whose name may hold anything but a line's end.
OutputsBefore read()
{
    OutputsBefore outputs;
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly))
        return outputs;
    const auto lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const auto &line : lines) {
        const auto sink = line.section(' ', 2);
        auto isVolume = false;
        const auto volume = line.section(' ', 1, 1).toUInt(&isVolume);
        if (!sink.isEmpty())
            outputs[sink] = {line.startsWith(QLatin1String(Muted)), isVolume ? std::optional(volume) : std::nullopt};
    }
    return outputs;
}

void write(const OutputsBefore &outputs)
{
    if (outputs.isEmpty()) {
        QFile::remove(path());
        return;
    }
    QString lines;
    for (auto output = outputs.begin(); output != outputs.end(); ++output) {
        const auto volume = output->volume ? QString::number(*output->volume) : QString::fromLatin1(NoVolume);
        lines += QStringLiteral("%1 %2 %3\n").arg(QLatin1String(output->wasMuted ? Muted : Open), volume, output.key());
    }
    QSaveFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(lines.toUtf8()) < 0 || !file.commit())
        qCWarning(lcSound, "Opened outputs are not remembered, ignoring: %ls", qUtf16Printable(file.errorString()));
}

} // namespace Sound::OutputRecord
