// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/titlequery.h"

#include <QUrl>

QString titleQuery(const QString &path)
{
    const QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    return "select nie:title(?u) ?u where { ?u a nmm:MusicPiece . ?u nie:url \"" + address + "\"}";
}
