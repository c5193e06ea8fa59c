// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/stylablewidget.h"

namespace Touch {
class ImageWidget;
}

/** Says in the place of an empty list how to make the first alarm. It takes no input. GUI thread. */
class EmptyListHint : public Touch::StylableWidget
{
    Q_OBJECT

public:
    explicit EmptyListHint(QGraphicsItem *parent = nullptr);

    /** Stands there, without its picture where the words need the room. */
    void fitInto(const QRectF &place);

protected:
    void styleChanged() override;

private:
    void fitImage();

    Touch::ImageWidget *m_image;
    QSizeF m_room; ///< its place
};
