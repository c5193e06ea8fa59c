// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QMarginsF>
#include <QRectF>
#include <QString>

class QGraphicsLayoutItem;

namespace Touch {

class Layout;

/**
 * One way to arrange the items of a layout. Made with its layout, which owns it. Margins and spacing come
 * from the policy's style unless they are set.
 */
class AbstractLayoutPolicy
{
public:
    explicit AbstractLayoutPolicy(Layout *layout);
    virtual ~AbstractLayoutPolicy();

    Layout *layout() const { return m_layout; }

    QString styleName() const { return m_styleName; }
    void setStyleName(const QString &styleName);
    void setContentsMargins(qreal left, qreal top, qreal right, qreal bottom);
    QMarginsF contentsMargins() const;
    void setSpacing(qreal spacing);
    qreal spacing() const;

    virtual bool contains(const QGraphicsLayoutItem *item) const = 0;
    /** What it holds, in the order in which it is read. */
    virtual QList<QGraphicsLayoutItem *> items() const = 0;
    /** Forgets an item; nothing happens if it is not held. */
    virtual void removeItem(const QGraphicsLayoutItem *item) = 0;
    /** The size of everything, without margins; a width of 0 or more is the width it will get. */
    virtual QSizeF contentSize(Qt::SizeHint which, qreal width) const = 0;
    virtual bool hasHeightForWidth() const = 0;
    virtual void arrange(const QRectF &area, bool isMirrored) = 0;

protected:
    /** Makes the item one of the layout's and asks for a new arrangement. */
    void adopt(QGraphicsLayoutItem *item);
    void invalidate();

private:
    Q_DISABLE_COPY(AbstractLayoutPolicy)

    Layout *m_layout;
    QString m_styleName;
    std::optional<QMarginsF> m_margins;
    std::optional<qreal> m_spacing;
};

} // namespace Touch
