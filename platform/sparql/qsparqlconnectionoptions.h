// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/** How a connection is opened; a value. Without changes it is that to the user's own store. */
class QSparqlConnectionOptions
{
public:
    /** The folder that holds the store and nothing else; empty stands for "clock/tones" in the user's cache. */
    [[nodiscard]] QString storeFolder() const { return m_storeFolder; }
    void setStoreFolder(const QString &folder) { m_storeFolder = folder; }

private:
    QString m_storeFolder;
};
