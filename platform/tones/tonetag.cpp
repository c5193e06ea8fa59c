// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonetag_p.h"

#include <fileref.h>
#include <mpegfile.h>
#include <QFile>
#include <tag.h>

namespace Tones {

namespace {

QString titleIn(const TagLib::Tag *tag)
{
    return tag ? QString::fromStdWString(tag->title().toWString()).trimmed() : QString();
}

} // namespace

QString titleOf(const QString &path)
{
    const auto name = QFile::encodeName(path);
    // The library takes bare AAC for nothing it knows, though it is tagged as MP3 is.
    if (path.endsWith(QLatin1String(".aac"), Qt::CaseInsensitive))
        return titleIn(TagLib::MPEG::File(name.constData(), false).tag());
    return titleIn(TagLib::FileRef(name.constData(), false).tag());
}

} // namespace Tones
