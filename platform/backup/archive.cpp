// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/archive.h"

#include "platform/backup/tar.h"
#include "platform/timedclient/eventcodec.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace Backup {

namespace {

namespace Wire = Astel::Timed::Wire;

constexpr int Version = 1;
const QString Format("clock-backup");
const QByteArray ManifestName("manifest.json");
const QByteArray EventsName("events.json");
const QByteArray SumsName("SHA256SUMS");

using Contents = QMap<QByteArray, QByteArray>;

/** In the form that "sha256sum --check" reads. */
QByteArray sumsOf(const QList<TarMember> &members)
{
    QByteArray result;
    for (const TarMember &member : members) {
        const QByteArray sum = QCryptographicHash::hash(member.content, QCryptographicHash::Sha256).toHex();
        result += sum + "  " + member.name + '\n';
    }
    return result;
}

QByteArray encodeRecords(const QList<Wire::Record> &records)
{
    QJsonArray array;
    for (const Wire::Record &record : records)
        array.append(QJsonObject{{"event", Astel::Timed::eventToJson(record.event)},
                                 {"state", record.state},
                                 {"moment", qint64(record.moment)}});
    return QJsonDocument(array).toJson();
}

Problem unreadable(const QByteArray &name)
{
    return failure(QStringLiteral("its %1 cannot be read").arg(QString::fromUtf8(name)));
}

Result<QList<Wire::Record>> decodeRecords(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isArray())
        return unreadable(EventsName);
    QList<Wire::Record> records;
    Astel::Timed::TextPool pool;
    const QJsonArray array = document.array();
    for (const auto &value : array) {
        const QJsonObject record = value.toObject();
        const auto event = Astel::Timed::eventFromJson(record["event"].toObject(), pool);
        if (!event)
            return unreadable(EventsName);
        records.append({*event, record["state"].toString(), quint64(record["moment"].toInteger())});
    }
    return records;
}

/** Adds the files to the members, and to the manifest what it says of each. */
template <typename File, typename Describe>
QJsonArray addFiles(QList<TarMember> &members, const QList<File> &files, const QByteArray &folder, Describe describe)
{
    QJsonArray result;
    for (const File &file : files) {
        const QByteArray name = folder + '/' + QByteArray::number(result.size() + 1);
        QJsonObject described = describe(file);
        described.insert("member", QString::fromUtf8(name));
        result.append(described);
        members.append({name, file.content});
    }
    return result;
}

/** The content of the file that a part of the manifest describes; nothing where
 * there is none. */
std::optional<QByteArray> contentOf(const QJsonObject &described, const Contents &contents)
{
    const auto found = contents.find(described["member"].toString().toUtf8());
    return found == contents.end() ? std::nullopt : std::optional(*found);
}

/** The manifest of what is a backup, of a version that is known here. */
Result<QJsonObject> manifestOf(const QList<TarMember> &members)
{
    if (members.isEmpty() || members.first().name != ManifestName)
        return failure("it is not a backup");
    if (members.last().name != SumsName || members.last().content != sumsOf(members.first(members.size() - 1)))
        return failure("it is damaged: its contents do not match their checksums");
    const QJsonObject manifest = QJsonDocument::fromJson(members.first().content).object();
    if (manifest["format"].toString() != Format)
        return failure("it is not a backup");
    if (const int version = manifest["version"].toInt(); version != Version)
        return failure(QStringLiteral("it has version %1, and only version %2 is "
                                      "known here; a newer clock-backup made it")
                           .arg(version)
                           .arg(Version));
    return manifest;
}

} // namespace

QByteArray encode(const Archive &archive)
{
    QList<TarMember> files{{EventsName, encodeRecords(archive.records)}};
    const QJsonArray settings = addFiles(files, archive.settings, "settings", [](const SettingsFile &file) {
        return QJsonObject{{"path", file.path}};
    });
    const QJsonArray tones = addFiles(files, archive.tones, "tones", [](const ToneFile &file) {
        return QJsonObject{{"original", file.original}, {"place", file.place}, {"path", file.path}};
    });
    const QJsonObject manifest{{"format", Format},
                               {"version", Version},
                               {"created", archive.created.toUTC().toString(Qt::ISODate)},
                               {"settings", settings},
                               {"tones", tones}};
    QList<TarMember> members{{ManifestName, QJsonDocument(manifest).toJson()}};
    members += files;
    members.append({SumsName, sumsOf(members)});
    return writeTar(members);
}

Result<Archive> decode(const QByteArray &bytes)
{
    const auto members = readTar(bytes);
    if (!members)
        return members.error();
    const auto manifest = manifestOf(*members);
    if (!manifest)
        return manifest.error();
    Contents contents;
    for (const TarMember &member : *members)
        contents.insert(member.name, member.content);

    const auto records = decodeRecords(contents.value(EventsName));
    if (!records)
        return records.error();
    Archive archive{QDateTime::fromString((*manifest)["created"].toString(), Qt::ISODate), *records, {}, {}};
    const QJsonArray settings = (*manifest)["settings"].toArray();
    for (const auto &value : settings) {
        const QJsonObject described = value.toObject();
        const auto content = contentOf(described, contents);
        if (!content)
            return unreadable(ManifestName);
        archive.settings.append({described["path"].toString(), *content});
    }
    const QJsonArray tones = (*manifest)["tones"].toArray();
    for (const auto &value : tones) {
        const QJsonObject described = value.toObject();
        const auto content = contentOf(described, contents);
        if (!content)
            return unreadable(ManifestName);
        archive.tones.append(
            {described["original"].toString(), described["place"].toString(), described["path"].toString(), *content});
    }
    return archive;
}

} // namespace Backup
