// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmlist/alarmslistmodel.h"

#include <QStringList>

/** What a model announced about its rows, in words: "+ 0 2 plain", "- 1 1 animated". */
class Announcements : public QObject
{
public:
    explicit Announcements(AlarmsListModel *model)
    {
        connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this,
                [this, model](const QModelIndex &, int first, int last) { add("+", first, last, model); });
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this, model](const QModelIndex &, int first, int last) { add("-", first, last, model); });
    }

    QStringList words;

private:
    void add(const QString &sign, int first, int last, const AlarmsListModel *model)
    {
        const QString way = model->isAnimated() ? "animated" : "plain";
        words.append(QString("%1 %2 %3 %4").arg(sign, QString::number(first), QString::number(last), way));
    }
};
