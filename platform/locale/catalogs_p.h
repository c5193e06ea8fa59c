// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <map>
#include <memory>
#include <QStringList>
#include <vector>

class QTranslator;

namespace Touch {

/// The catalogues that the application shows. One for the process, on the GUI thread.
class Catalogs
{
public:
    static Catalogs &instance();
    ~Catalogs();

    /// Shows the catalogues of these names in the language of this ICU locale; what is shown already is left
    /// alone.
    void show(const QStringList &names, const QByteArray &locale);

    /// Whether there is a text of it in this locale or in one that it falls back to.
    static bool exists(const QString &name, const QByteArray &locale);
    /// The files of a catalogue, the one to be asked first at the end.
    static QStringList files(const QString &name, const QByteArray &locale);

private:
    Catalogs() = default;

    QByteArray m_locale;
    std::map<QString, std::vector<std::unique_ptr<QTranslator>>> m_shown;
};

} // namespace Touch
