// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QVariant>

/** What the generated adaptor exports for a ContextPublisher. */
class PublishedValue : public QObject
{
    Q_OBJECT

public:
    explicit PublishedValue(const QVariant &initial);

    QDBusVariant get() const;
    void set(const QVariant &value);

signals:
    void changed(const QDBusVariant &value);

private:
    QVariant m_value;
};
