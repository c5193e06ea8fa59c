// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QStringList>

struct CatalogueText
{
    QString id;
    QString source;    ///< the English text that was translated
    QStringList forms; ///< one, or the plural forms
    bool isPlural = false;
    bool isMarked = false; ///< as unfinished, vanished or the like
};

/** All that have files; the names of countries have none. */
QStringList catalogueNames();
/** Where its files are, in the sources. */
QString catalogueFolder(const QString &name);

/** What a translator wrote: the .ts file of one catalogue in one language. */
struct Catalogue
{
    /** Empty, with an error, if it cannot be read to its end. */
    static Catalogue read(const QString &name, const QString &language);

    QString language;
    QList<CatalogueText> texts;
    QString error;
};
