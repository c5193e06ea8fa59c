// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonestatements_p.h"

#include "platform/sparql/sparqlliteral.h"

#include <QDateTime>
#include <QUrl>

namespace Tones {

QString addressOf(const QString &path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

QString pathOf(const QString &address)
{
    return QUrl::fromEncoded(address.toLatin1()).toLocalFile();
}

QString allFilesQuery()
{
    return QStringLiteral("select ?url nfo:fileLastModified(?u) nfo:fileSize(?u) "
                          "where { ?u a nfo:FileDataObject ; nie:url ?url }");
}

QString insertion(const QString &path, const FileState &state, const QString &title)
{
    const auto modified = QDateTime::fromSecsSinceEpoch(state.modified, Qt::UTC).toString(Qt::ISODate);
    auto statement = QStringLiteral("insert data { [] a nfo:FileDataObject ; nie:url %1 ; "
                                    "nfo:fileLastModified \"%2\" ; nfo:fileSize %3 ")
                         .arg(sparqlLiteral(addressOf(path)), modified, QString::number(state.size));
    if (!title.isEmpty())
        statement += QLatin1String("; a nmm:MusicPiece ; nie:title ") + sparqlLiteral(title);
    return statement + QLatin1String(" } ");
}

QString removal(const QString &path)
{
    return QStringLiteral("delete { ?u a rdfs:Resource } where { ?u nie:url %1 } ").arg(sparqlLiteral(addressOf(path)));
}

} // namespace Tones
