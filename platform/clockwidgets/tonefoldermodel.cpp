// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefoldermodel_p.h"

#include "platform/clockwidgets/tonecollator_p.h"
#include "platform/clockwidgets/toneplaces_p.h"
#include "platform/tones/tonefiles.h"

#include <algorithm>
#include <QDir>

ToneFolderModel::ToneFolderModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

ToneFolderModel::~ToneFolderModel() = default;

void ToneFolderModel::enter(const QString &folder)
{
    if (m_folder.isEmpty())
        m_place = folder;
    m_folder = folder;
    refresh();
}

bool ToneFolderModel::goUp()
{
    if (m_folder.isEmpty())
        return false;
    m_folder = upperFolder();
    refresh();
    return true;
}

void ToneFolderModel::refresh()
{
    // A memory card may be gone by now.
    if (!m_folder.isEmpty() && !QFileInfo(m_folder).isDir())
        m_folder.clear();
    beginResetModel();
    m_entries = m_folder.isEmpty() ? places() : content();
    endResetModel();
}

QString ToneFolderModel::upperFolder() const
{
    return m_folder == m_place ? QString() : QFileInfo(m_folder).path();
}

QString ToneFolderModel::title() const
{
    return titleOf(m_folder);
}

QString ToneFolderModel::titleOf(const QString &folder)
{
    if (folder.isEmpty())
        return qtTrId("qtn_sond_places");
    const QList<TonePlace> places = tonePlaces();
    const auto isIt = [&folder](const TonePlace &place) { return place.path == folder; };
    const auto place = std::find_if(places.begin(), places.end(), isIt);
    return place != places.end() ? place->name : QFileInfo(folder).fileName();
}

QList<ToneFolderModel::Entry> ToneFolderModel::places() const
{
    QList<Entry> entries;
    const QList<TonePlace> places = tonePlaces();
    for (const TonePlace &place : places)
        entries += {Folder, place.name, place.path};
    return entries;
}

QList<ToneFolderModel::Entry> ToneFolderModel::content() const
{
    QList<Entry> entries;
    const QFileInfoList infos = QDir(m_folder).entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    for (const QFileInfo &info : infos) {
        if (info.isDir() || Tones::isSoundFile(info.fileName()))
            entries += {info.isDir() ? Folder : File, info.fileName(), info.absoluteFilePath()};
    }
    const QCollator order = toneCollator();
    std::sort(entries.begin(), entries.end(), [&order](const Entry &one, const Entry &other) {
        return one.kind != other.kind ? one.kind < other.kind : order.compare(one.name, other.name) < 0;
    });
    if (entries.isEmpty())
        entries += {Note, qtTrId("qtn_sond_folder_empty"), {}};
    const QString upper = upperFolder();
    entries.prepend({Up, qtTrId("qtn_sond_folder_up").arg(titleOf(upper)), upper});
    return entries;
}

int ToneFolderModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant ToneFolderModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return entry.name;
    case KindRole:
        return entry.kind;
    case PathRole:
        return entry.path;
    default:
        return {};
    }
}
