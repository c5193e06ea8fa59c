// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/languages/catalogue.h"

#include "tests/support/places.h"

#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

namespace {

const QHash<QString, QString> folders{
    {"clock", "data/translations"},
    {"desktop", "data/desktop/translations"},
    {"sounds", "platform/clockwidgets/translations"},
    {"ringer", "platform/ringer/texts/translations"},
    {"timed", "platform/timed/translations"},
};

CatalogueText readMessage(QXmlStreamReader &xml)
{
    CatalogueText text;
    text.id = xml.attributes().value("id").toString();
    text.isPlural = xml.attributes().value("numerus") == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            text.source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            text.isMarked = xml.attributes().hasAttribute("type");
            if (!text.isPlural)
                text.forms << xml.readElementText();
            while (text.isPlural && xml.readNextStartElement())
                text.forms << xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

} // namespace

QStringList catalogueNames()
{
    return folders.keys();
}

QString catalogueFolder(const QString &name)
{
    return Places::source(folders[name]);
}

Catalogue Catalogue::read(const QString &name, const QString &language)
{
    Catalogue catalogue;
    QFile file(QStringLiteral("%1/%2_%3.ts").arg(catalogueFolder(name), name, language));
    if (!file.open(QIODevice::ReadOnly)) {
        catalogue.error = file.errorString();
        return catalogue;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"TS")
            catalogue.language = xml.attributes().value("language").toString();
        else if (xml.name() == u"message")
            catalogue.texts << readMessage(xml);
    }
    if (xml.hasError())
        catalogue.error = xml.errorString();
    return catalogue;
}
