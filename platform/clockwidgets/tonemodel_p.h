// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlconnection.h"

#include <QAbstractListModel>
#include <QHash>

class QSparqlResult;

/// What there is to choose from: "No sound", the system's tones, then the user's own music, each sorted by title in the
/// user's language. The files are there at once; titles and music come when the store has answered. Owned by the sheet.
class ToneModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { PathRole = Qt::UserRole, IsOwnRole, IsSelectedRole, IsPlayingRole };

    explicit ToneModel(QObject *parent = nullptr);
    ~ToneModel() override;

    /// Looks at files and store again.
    void refresh();
    /// The tone that Done would take; a file that is not among the others becomes one of them if it exists.
    QString selected() const { return m_selected; }
    void setSelected(const QString &path);
    QString playing() const { return m_playing; }
    void setPlaying(const QString &path);

    /// Whether it is one of the system's, which are known to be heard.
    bool isShipped(const QString &path) const;
    int rowOf(const QString &path) const;
    QString titleOf(const QString &path) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Tone
    {
        QString path;
        QString title;
        enum Kind { Silence, Shipped, Own, Elsewhere } kind; ///< in the order in which they are listed
    };

    void takeTitles(QSparqlResult &result);
    void arrange();
    /// The listed one of a tone that is installed in several folders; empty if it is none of the system's.
    QString shippedAs(const QString &path) const;
    QString bestTitle(const QString &path) const;
    void rowChanged(const QString &path);

    QSparqlConnection m_store;
    QStringList m_shipped;
    QHash<QString, QString> m_titles; ///< of every file that the store knows
    QList<Tone> m_tones;
    QString m_selected;
    QString m_playing;
};
