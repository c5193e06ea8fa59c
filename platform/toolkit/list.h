// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/listrows_p.h"
#include "platform/toolkit/widget.h"
#include "platform/toolkit/widgetrecycler.h"

#include <memory>
#include <QMap>
#include <QPointer>
#include <QSet>

class QAbstractItemModel;
class QItemSelectionModel;
class QVariantAnimation;

namespace Touch {

class CellCreator;
class ListSelection;
class ListTitles;

/**
 * The rows of a model as cells, one below the other; as tall as all of them, to be put into a viewport. Only cells that
 * can be seen exist, and they are used again. Single insertions and removals are animated where the model asks for it.
 * Does not own the model.
 */
class List : public Widget
{
    Q_OBJECT

public:
    /** Without selection, taps are for the cells alone. With it, a tap on a cell or Space chooses its row as well. */
    enum SelectionMode { NoSelection, SingleSelection, MultipleSelection };
    Q_ENUM(SelectionMode)

    explicit List(QGraphicsItem *parent = nullptr);
    ~List() override;

    QAbstractItemModel *itemModel() const;
    void setItemModel(QAbstractItemModel *model);
    CellCreator *cellCreator() const { return m_creator.get(); }
    void setCellCreator(CellCreator *creator);
    bool isSelected(int row) const;
    SelectionMode selectionMode() const { return m_selectionMode; }
    void setSelectionMode(SelectionMode mode);
    /** The chosen rows, of the model that is set; null without selection. */
    QItemSelectionModel *selectionModel() const;
    /** Whether the groups of an AbstractItemModel that has some get their titles. */
    bool showGroups() const { return m_showsGroups; }
    void setShowGroups(bool showsGroups);
    /** A wish for how the cells are made, such as "fast". All of them are made so: it changes nothing. */
    QString viewType() const { return m_viewType; }
    void setViewType(const QString &viewType);

    /** The cell of a row, or null while it cannot be seen. */
    Widget *cellAt(int row) const { return m_cells.value(row); }
    /** The row of a cell, or -1. */
    int rowOf(const QGraphicsItem *cell) const;

    QAccessible::Role accessibleRole() const override { return QAccessible::List; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    void styleChanged() override;
    void exitDisplay() override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    bool sceneEventFilter(QGraphicsItem *watched, QEvent *event) override;

private:
    struct Change
    {
        int shiftedFrom = 0;
        qreal shift = 0;
        bool shiftsTitle = true; ///< the one right above
        qreal progress = 0;
        Widget *cell = nullptr;
        bool appears = false;
    };

    void rowsInserted(int first, int last);
    void rowsRemoved(int first, int last);
    void dataChanged(int first, int last);
    void rebuild();
    void readGroups();
    void renewSelection();
    int rowUnder(const QPointF &place) const;
    void paintSelection(QPainter *painter, int row) const;
    void followCellSize();
    void rekey(int first, int by);
    void giveBack(Widget *cell);

    bool isChangeAnimated(int first, int last) const;
    void animate(const Change &change);
    void setAnimationProgress(qreal progress);
    void finishAnimation();

    void scheduleUpdate();
    void updateCells();
    void placeCell(int row, Widget *cell);
    QRectF visibleRect();

    /** The row that has the focus or something in it has; -1 if none has. */
    int focusedRow() const;
    int rowForKey(int key, int from) const;
    bool focusRow(int row);
    void rememberFocus();
    /** Follows rows that come, or go if the count is negative. */
    void shiftFocus(int first, int count);
    void keepFocusOf(Widget *cell);
    void giveFocusBack();

    QPointer<QAbstractItemModel> m_model;
    std::unique_ptr<CellCreator> m_creator;
    SelectionMode m_selectionMode = NoSelection;
    bool m_showsGroups = false;
    QString m_viewType;
    ListRows m_rows;
    std::unique_ptr<ListTitles> m_titles;
    ListSelection *m_selection = nullptr; ///< only with a mode that selects

    // Cells
    QMap<int, Widget *> m_cells;
    QSet<int> m_outdated;
    WidgetRecycler m_recycler;
    bool m_isUpdateScheduled = false;
    QPointer<QGraphicsWidget> m_viewport;
    int m_focusedRow = -1; ///< has the focus again when it can be seen

    Change m_change; ///< the one that is being animated
    QVariantAnimation *m_animation = nullptr;
};

} // namespace Touch
