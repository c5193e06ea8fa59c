// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QVariant>

namespace Touch {

/**
 * What fields ask of the software keyboard: sets of attributes, each for an item of a target, that fields attach as
 * their toolbar. Of the action key ("/keys", "actionKey") Qt's input methods are told that it ends the editing where
 * it has a "label". One for the process; GUI thread only.
 */
class InputMethodState : public QObject
{
    Q_OBJECT

public:
    static InputMethodState &instance();
    ~InputMethodState() override;

    /** Starts an empty set; the file may describe it to keyboards that read one. Ids are above 0. */
    int registerAttributeExtension(const QString &fileName = QString());
    void unregisterAttributeExtension(int id);
    QString extensionFile(int id) const { return m_extensions.value(id).fileName; }

    /** Nothing happens if there is no such set. */
    void setExtendedAttribute(int id, const QString &target, const QString &item, const QString &attribute,
                              const QVariant &value);
    /** Invalid if it was never set. */
    QVariant extendedAttribute(int id, const QString &target, const QString &item, const QString &attribute) const;
    /** What the Enter key of an ordinary keyboard stands for. */
    Qt::EnterKeyType enterKeyType(int id) const;

signals:
    void extendedAttributeChanged(int id, const QString &target, const QString &item, const QString &attribute,
                                  const QVariant &value);

private:
    InputMethodState();
    Q_DISABLE_COPY(InputMethodState)

    struct Extension
    {
        QString fileName;
        QHash<QString, QVariant> attributes; ///< by target, item and attribute
    };

    QHash<int, Extension> m_extensions;
    int m_lastId = 0;
};

} // namespace Touch
