// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QTranslator>

namespace Touch {

/// The catalogue "countries": "qtn_country_se" is "Schweden" in German. ICU knows them in every language, so there
/// are no files. A code that stands for no country has no text.
class CountryNames : public QTranslator
{
public:
    explicit CountryNames(const QByteArray &locale);

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;

private:
    QByteArray m_locale;
};

} // namespace Touch
