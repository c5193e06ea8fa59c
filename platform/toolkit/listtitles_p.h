// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/label.h"

#include <memory>
#include <QMap>

class QAbstractItemModel;

namespace Touch {

class ListRows;

/** The titles above the groups of a list. Only those that can be seen exist; groups without rows have none. */
class ListTitles
{
public:
    explicit ListTitles(QGraphicsWidget *list);
    ~ListTitles();

    /** Takes over the groups of a model; none if it has none, or is null. */
    void read(const QAbstractItemModel *model);
    /** The first row of each group. */
    QList<int> firstRows() const { return m_firstRows; }
    /** Of one title, by the theme. */
    qreal height() const;
    void place(const ListRows &rows, const QRectF &seen);

private:
    QGraphicsWidget *m_list;
    QList<int> m_firstRows;
    QStringList m_texts;
    QMap<qsizetype, Label *> m_labels;
    mutable std::unique_ptr<Label> m_pattern; ///< measured, never shown
};

} // namespace Touch
