// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/listtitles_p.h"

#include "platform/toolkit/abstractitemmodel.h"
#include "platform/toolkit/listrows_p.h"

namespace Touch {

namespace {

Label *makeTitle(QGraphicsItem *parent)
{
    auto *label = new Label(parent);
    label->setObjectName(QStringLiteral("groupTitle"));
    label->setStyleName(QStringLiteral("CommonGroupTitle"));
    return label;
}

} // namespace

ListTitles::ListTitles(QGraphicsWidget *list)
    : m_list(list)
{ }

ListTitles::~ListTitles() = default;

void ListTitles::read(const QAbstractItemModel *model)
{
    m_firstRows.clear();
    m_texts.clear();
    const auto *grouped = qobject_cast<const AbstractItemModel *>(model);
    int row = 0;
    for (int group = 0; grouped && group < grouped->groupCount(); ++group) {
        const int count = grouped->rowCountInGroup(group);
        if (count > 0) {
            m_firstRows.append(row);
            m_texts.append(grouped->groupTitle(group));
        }
        row += count;
    }
    // The others are placed anew.
    while (!m_labels.isEmpty() && m_labels.lastKey() >= m_firstRows.size())
        delete m_labels.take(m_labels.lastKey());
}

qreal ListTitles::height() const
{
    if (!m_pattern)
        m_pattern.reset(makeTitle(nullptr));
    return m_pattern->effectiveSizeHint(Qt::PreferredSize).height();
}

void ListTitles::place(const ListRows &rows, const QRectF &seen)
{
    for (qsizetype group = 0; group < m_firstRows.size(); ++group) {
        const QRectF place(0, qRound(rows.titleTop(m_firstRows[group])), m_list->size().width(), rows.titleHeight());
        if (!place.intersects(seen)) {
            delete m_labels.take(group);
            continue;
        }
        Label *&label = m_labels[group];
        if (!label)
            label = makeTitle(m_list);
        label->setText(m_texts[group]);
        label->setGeometry(place);
    }
}

} // namespace Touch
