// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/cellcreator.h"

#include <memory>
#include <QSizeF>

class AlarmListItem;
class AlarmsWidget;

/**
 * Makes the cells of the alarm list and fills them from the model's rows. The list owns it; the alarms widget that
 * receives the cells' signals must outlive it. GUI thread.
 */
class AlarmListCreator : public Touch::CellCreator
{
public:
    explicit AlarmListCreator(AlarmsWidget *alarmsWidget);
    ~AlarmListCreator() override;

    Touch::Widget *createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler) override;
    /** Overwrites everything the cell shows, except that an empty tone leaves the cell's tone. */
    void updateCell(const QModelIndex &index, Touch::Widget *cell) override;
    /** All cells are as tall as a new one; another theme may change it. */
    QSizeF cellSize() const override;

private:
    void addDeleteAction(AlarmListItem *cell);

    AlarmsWidget *m_alarmsWidget;
    std::unique_ptr<AlarmListItem> m_pattern;
};
