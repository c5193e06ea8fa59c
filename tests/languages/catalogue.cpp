// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/languages/catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

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

Catalogue Catalogue::read(const QString &path)
{
    Catalogue catalogue;
    QFile file(path);
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
