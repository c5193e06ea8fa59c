// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/pressable.h"

class QGraphicsLayout;

namespace Touch {

class ImageWidget;
class Label;

/**
 * A row to tap, of a title and, by its style, of a subtitle and an icon. Its layout is built by createLayout() before
 * the row is first measured or seen, so that an override of it has its say. Owns its parts.
 */
class BasicListItem : public Pressable
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString subtitle READ subtitle WRITE setSubtitle)

public:
    enum ItemStyle { SingleTitle = 0, TitleWithSubtitle = 1, IconWithTitle = 2, IconWithTitleAndSubtitle = 3 };
    Q_ENUM(ItemStyle)

    explicit BasicListItem(ItemStyle itemStyle = SingleTitle, QGraphicsItem *parent = nullptr);
    ~BasicListItem() override;

    ItemStyle itemStyle() const { return m_itemStyle; }
    QString title() const;
    void setTitle(const QString &title);
    QString subtitle() const;
    void setSubtitle(const QString &subtitle);

    Label *titleLabel() const { return m_titleLabel; }
    Label *subtitleLabel() const { return m_subtitleLabel; }
    /** The icon of the base's own layout; hidden unless that layout shows it. */
    ImageWidget *imageWidget() const { return m_imageWidget; }
    void setImage(const QString &iconId);

    QAccessible::Role accessibleRole() const override { return QAccessible::Button; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

signals:
    void clicked();

protected:
    /** Makes the layout, which becomes the row's; called once. Parts that it leaves out are hidden. */
    virtual QGraphicsLayout *createLayout();
    QString shownText() const override;
    void polishEvent() override;
    void tapped() override { emit clicked(); }
    void updateGeometry() override;

private:
    bool hasIcon() const { return m_itemStyle == IconWithTitle || m_itemStyle == IconWithTitleAndSubtitle; }
    bool hasSubtitle() const { return m_itemStyle == TitleWithSubtitle || m_itemStyle == IconWithTitleAndSubtitle; }
    void ensureLayout();

    ItemStyle m_itemStyle;
    Label *m_titleLabel;
    Label *m_subtitleLabel;
    ImageWidget *m_imageWidget;
    bool m_isLayoutCreated = false;
};

} // namespace Touch
