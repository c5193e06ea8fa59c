// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonemodel_p.h"

#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/tonecollator_p.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/tones/tonefiles.h"

#include <algorithm>
#include <QFileInfo>
#include <QUrl>

namespace {

bool isOwnMusic(const QString &path)
{
    const QString music = Tones::musicFolder();
    return !music.isEmpty() && path.startsWith(music + QLatin1Char('/'));
}

} // namespace

ToneModel::ToneModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_store(QStringLiteral("QTRACKER"))
{ }

ToneModel::~ToneModel() = default;

void ToneModel::refresh()
{
    m_shipped.clear();
    QStringList names;
    for (const QString &folder : Tones::ringToneFolders()) {
        const QStringList paths = Tones::scanFolders({folder}).files.keys();
        for (const QString &path : paths) {
            // The same tone may be installed twice.
            const QString name = QFileInfo(path).fileName();
            if (!names.contains(name))
                m_shipped += path;
            names += name;
        }
    }
    arrange();
    auto *titles = m_store.exec(
        QSparqlQuery(QStringLiteral("select ?url nie:title(?u) where { ?u a nfo:FileDataObject ; nie:url ?url }")));
    connect(titles, &QSparqlResult::finished, this, [this, titles] { takeTitles(*titles); });
    connect(titles, &QSparqlResult::finished, titles, &QObject::deleteLater);
}

void ToneModel::takeTitles(QSparqlResult &result)
{
    m_titles.clear();
    while (result.next()) {
        const QUrl url = QUrl::fromEncoded(result.stringValue(0).toLatin1());
        m_titles.insert(url.toLocalFile(), result.stringValue(1));
    }
    arrange();
}

QString ToneModel::bestTitle(const QString &path) const
{
    const QString title = m_titles.value(path);
    return title.isEmpty() ? AlertTone::niceNameOf(path) : title;
}

bool ToneModel::isShipped(const QString &path) const
{
    return !shippedAs(path).isEmpty();
}

QString ToneModel::shippedAs(const QString &path) const
{
    if (m_shipped.contains(path))
        return path;
    const auto isSame
        = [name = QFileInfo(path).fileName()](const QString &tone) { return QFileInfo(tone).fileName() == name; };
    const auto tone = std::find_if(m_shipped.begin(), m_shipped.end(), isSame);
    return tone == m_shipped.end() || isOwnMusic(path) ? QString() : *tone;
}

void ToneModel::arrange()
{
    QStringList own;
    for (auto file = m_titles.keyBegin(); file != m_titles.keyEnd(); ++file) {
        if (isOwnMusic(*file))
            own += *file;
    }

    QList<Tone> tones;
    for (const QString &path : std::as_const(m_shipped)) {
        tones += {path, bestTitle(path), Tones::isNoSound(path) ? Tone::Silence : Tone::Shipped};
    }
    for (const QString &path : std::as_const(own))
        tones += {path, bestTitle(path), Tone::Own};
    if (!own.contains(m_selected) && shippedAs(m_selected).isEmpty() && QFileInfo::exists(m_selected))
        tones += {m_selected, bestTitle(m_selected), isOwnMusic(m_selected) ? Tone::Own : Tone::Elsewhere};
    const QCollator order = toneCollator();
    std::sort(tones.begin(), tones.end(), [&order](const Tone &one, const Tone &other) {
        if (one.kind != other.kind)
            return one.kind < other.kind;
        const int compared = order.compare(one.title, other.title);
        return compared != 0 ? compared < 0 : one.path < other.path;
    });
    beginResetModel();
    m_tones = tones;
    endResetModel();
}

void ToneModel::setSelected(const QString &path)
{
    if (m_selected == path)
        return;
    const QString before = m_selected;
    m_selected = path;
    if (rowOf(path) < 0)
        arrange();
    rowChanged(before);
    rowChanged(path);
}

void ToneModel::setPlaying(const QString &path)
{
    if (m_playing == path)
        return;
    const QString before = m_playing;
    m_playing = path;
    rowChanged(before);
    rowChanged(path);
}

void ToneModel::rowChanged(const QString &path)
{
    const QModelIndex changed = index(rowOf(path));
    if (changed.isValid())
        Q_EMIT dataChanged(changed, changed);
}

int ToneModel::rowOf(const QString &path) const
{
    const QString shipped = shippedAs(path);
    const auto isIt = [&wanted = shipped.isEmpty() ? path : shipped](const Tone &tone) { return tone.path == wanted; };
    const auto tone = std::find_if(m_tones.begin(), m_tones.end(), isIt);
    return tone != m_tones.end() ? int(tone - m_tones.begin()) : -1;
}

QString ToneModel::titleOf(const QString &path) const
{
    const int row = rowOf(path);
    return row < 0 ? AlertTone::niceNameOf(path) : m_tones.at(row).title;
}

int ToneModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_tones.size());
}

QVariant ToneModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Tone &tone = m_tones.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return tone.title;
    case PathRole:
        return tone.path;
    case IsOwnRole:
        return tone.kind == Tone::Own;
    case IsSelectedRole:
        return index.row() == rowOf(m_selected);
    case IsPlayingRole:
        return tone.path == m_playing;
    default:
        return {};
    }
}
