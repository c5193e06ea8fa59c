// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractListModel>

/// What there is in a folder to look for a tone: the way up, its folders, then its sound files, each sorted by name in
/// the user's language. Above all folders stand the places to start from. Hidden ones are left out. Owned by the sheet.
class ToneFolderModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Kind {
        Up,
        Folder,
        File,
        Note ///< says why there is nothing more
    };
    enum Role { KindRole = Qt::UserRole, PathRole };

    explicit ToneFolderModel(QObject *parent = nullptr);
    ~ToneFolderModel() override;

    /// The folder that is shown; empty stands for the places.
    QString folder() const { return m_folder; }
    /// Goes to one of the folders that are listed.
    void enter(const QString &folder);
    /// False where there is nothing above.
    bool goUp();
    /// Looks again at what there is.
    void refresh();
    /// What the user calls the folder.
    QString title() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Entry
    {
        Kind kind;
        QString name;
        QString path;
    };

    QList<Entry> places() const;
    QList<Entry> content() const;
    QString upperFolder() const;
    static QString titleOf(const QString &folder);

    QString m_folder;
    QString m_place; ///< from which one came to the folder
    QList<Entry> m_entries;
};
