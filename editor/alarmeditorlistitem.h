// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/basiclistitem.h"

namespace Touch {
class GridLayoutPolicy;
}

/**
 * A row of the editor to tap: a title with an arrow that leads on, or a title above the value that is set and an arrow
 * that opens a choice, by its item style. The theme reaches each part by name. Owns its parts; GUI thread.
 */
class AlarmEditorListItem : public Touch::BasicListItem
{
    Q_OBJECT

public:
    explicit AlarmEditorListItem(ItemStyle itemStyle, QGraphicsItem *parent = nullptr);
    ~AlarmEditorListItem() override;

    Touch::ImageWidget *imageWidget() const { return m_imageWidget; }
    /** Takes the image and puts it where the arrow was, which is deleted; null changes nothing. */
    void setImageWidget(Touch::ImageWidget *imageWidget);

protected:
    QGraphicsLayout *createLayout() override;

private:
    void placeTitle();
    void placeTitleAndSubtitle();
    void placeImage();

    Touch::ImageWidget *m_imageWidget;
    Touch::GridLayoutPolicy *m_grid = nullptr; ///< owned by the layout; null until there is one
};
