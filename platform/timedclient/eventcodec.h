// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QSet>
#include <QString>

class QJsonObject;

namespace Astel::Timed {

namespace Wire {
struct Event;
}

/** An event as JSON, as it is stored and backed up. */
QJsonObject eventToJson(const Wire::Event &event);
QString encodeEvent(const Wire::Event &event);

/** Keeps one copy of what many events hold: the names of their attributes, and most values. */
class TextPool
{
public:
    QString shared(const QString &text) { return *m_texts.insert(text); }

private:
    QSet<QString> m_texts;
};

/** Nothing where the object is not one of eventToJson(). */
std::optional<Wire::Event> eventFromJson(const QJsonObject &object, TextPool &pool);
/** From UTF-8; nothing where the text is not one of encodeEvent(). */
std::optional<Wire::Event> decodeEvent(const QByteArray &text, TextPool &pool);

} // namespace Astel::Timed
