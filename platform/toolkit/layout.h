// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsLayout>
#include <QList>

namespace Touch {

class AbstractLayoutPolicy;

/**
 * A layout with several policies, of which one is active: the one set for the window's orientation, or else
 * the one set (the first, unless told). Items that the active policy does not hold are hidden. It owns its
 * policies, and what lies in it as any graphics layout does. Belongs to the widget it is made with.
 */
class Layout : public QGraphicsLayout
{
public:
    explicit Layout(QGraphicsLayoutItem *parent = nullptr);
    ~Layout() override;

    /** Makes a policy the active one in both orientations. */
    void setPolicy(AbstractLayoutPolicy *policy);
    void setLandscapePolicy(AbstractLayoutPolicy *policy);
    void setPortraitPolicy(AbstractLayoutPolicy *policy);
    /** The active one; null if there is none. */
    AbstractLayoutPolicy *policy() const;
    AbstractLayoutPolicy *landscapePolicy() const { return m_landscapePolicy; }
    AbstractLayoutPolicy *portraitPolicy() const { return m_portraitPolicy; }

    int count() const override { return int(m_items.size()); }
    QGraphicsLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    /** Takes an item out of all policies and gives it up. */
    void removeAt(int index) override;
    void setGeometry(const QRectF &rect) override;
    void invalidate() override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    friend class AbstractLayoutPolicy;

    void registerPolicy(AbstractLayoutPolicy *policy);
    void adopt(QGraphicsLayoutItem *item);
    /** Shows what the active policy holds and hides the rest; nothing at all while it is not shown itself. */
    void showActiveItems();
    void setItemShown(QGraphicsLayoutItem *item, bool isShown);
    void setShown(bool isShown);
    Qt::Orientation windowOrientation() const;
    QGraphicsItem *parentGraphicsItem() const;
    QMarginsF outerMargins(bool isMirrored) const;
    bool isMirrored() const;
    void updateHeightForWidth();

    QList<QGraphicsLayoutItem *> m_items;
    QList<AbstractLayoutPolicy *> m_policies;
    AbstractLayoutPolicy *m_policy = nullptr;
    AbstractLayoutPolicy *m_landscapePolicy = nullptr;
    AbstractLayoutPolicy *m_portraitPolicy = nullptr;
    QList<QGraphicsLayoutItem *> m_hidden; ///< hidden by this layout, not by anybody else
    bool m_isShown = true;
};

} // namespace Touch
