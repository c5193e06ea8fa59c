// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <QGraphicsLayout>

namespace Touch {

/**
 * The layout of a widget that places its one content itself: it only carries the news that the content's size hints
 * have changed, and the preferred size, upwards.
 */
class ContentLayout : public QGraphicsLayout
{
public:
    ContentLayout(QGraphicsLayoutItem *parent, std::function<void()> arrange);
    ~ContentLayout() override;

    void setContent(QGraphicsLayoutItem *content);

    int count() const override { return m_content ? 1 : 0; }
    QGraphicsLayoutItem *itemAt(int) const override { return m_content; }
    void removeAt(int index) override;
    void setGeometry(const QRectF &rect) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

private:
    QGraphicsLayoutItem *m_content = nullptr;
    std::function<void()> m_arrange;
};

} // namespace Touch
