// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/list.h"

#include "platform/toolkit/abstractitemmodel.h"
#include "platform/toolkit/cellcreator.h"
#include "platform/toolkit/listtitles_p.h"
#include "platform/toolkit/motion_p.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/pannableviewport.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QVariantAnimation>

namespace Touch {

namespace {

constexpr int changeTime = 200;
/** Rows beyond the edge that have a cell already, so that slow panning never waits for one. */
constexpr int spareRows = 1;

} // namespace

List::List(QGraphicsItem *parent)
    : Widget(parent)
    , m_titles(std::make_unique<ListTitles>(this))
{
    setFlag(ItemSendsScenePositionChanges);
    setFlag(ItemUsesExtendedStyleOption);
    // It holds the focus for a row that cannot be seen for the moment.
    setFlag(ItemIsFocusable);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

List::~List()
{
    if (m_model)
        m_model->disconnect(this);
}

QAbstractItemModel *List::itemModel() const
{
    return m_model;
}

void List::setItemModel(QAbstractItemModel *model)
{
    if (m_model == model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (model) {
        connect(model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) { rowsInserted(first, last); });
        connect(model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) { rowsRemoved(first, last); });
        connect(model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to) { dataChanged(from.row(), to.row()); });
        connect(model, &QAbstractItemModel::modelReset, this, &List::rebuild);
        connect(model, &QAbstractItemModel::layoutChanged, this, &List::rebuild);
        connect(model, &QAbstractItemModel::rowsMoved, this, &List::rebuild);
        connect(model, &QObject::destroyed, this, &List::rebuild);
    }
    renewSelection();
    rebuild();
}

void List::setCellCreator(CellCreator *creator)
{
    if (m_creator.get() == creator)
        return;
    // Cells of the other creator are of no use to this one.
    finishAnimation();
    qDeleteAll(m_cells);
    m_cells.clear();
    while (m_recycler.count() > 0)
        delete m_recycler.take(QString());
    m_creator.reset(creator);
    rebuild();
}

void List::setShowGroups(bool showsGroups)
{
    if (m_showsGroups == showsGroups)
        return;
    m_showsGroups = showsGroups;
    rebuild();
}

void List::readGroups()
{
    m_titles->read(m_showsGroups ? m_model.data() : nullptr);
    m_rows.setTitles(m_titles->firstRows(), m_showsGroups ? m_titles->height() : 0);
}

void List::setViewType(const QString &viewType)
{
    m_viewType = viewType;
}

int List::rowOf(const QGraphicsItem *cell) const
{
    for (auto it = m_cells.begin(); it != m_cells.end(); ++it) {
        if (it.value() == cell)
            return it.key();
    }
    return -1;
}

void List::rebuild()
{
    finishAnimation();
    // From the last to the first: the recycler gives them out in the order of the rows again.
    rememberFocus();
    for (auto it = m_cells.end(); it != m_cells.begin();)
        giveBack(*--it);
    m_cells.clear();
    m_outdated.clear();
    m_rows.setCount(m_model ? m_model->rowCount() : 0);
    m_rows.setRowHeight(m_creator ? m_creator->cellSize().height() : 0);
    readGroups();
    updateGeometry();
    update();
    scheduleUpdate();
}

// Its menu was opened on a row that the cell no longer stands for.
void List::giveBack(Widget *cell)
{
    keepFocusOf(cell);
    ObjectMenu::closeFor(cell);
    m_recycler.recycle(cell);
}

void List::rekey(int first, int by)
{
    QMap<int, Widget *> cells;
    for (auto it = m_cells.begin(); it != m_cells.end(); ++it)
        cells.insert(it.key() >= first ? it.key() + by : it.key(), it.value());
    m_cells = cells;
    QSet<int> outdated;
    for (const int row : std::as_const(m_outdated))
        outdated.insert(row >= first ? row + by : row);
    m_outdated = outdated;
}

void List::rowsInserted(int first, int last)
{
    finishAnimation();
    const int count = last - first + 1;
    rememberFocus();
    shiftFocus(first, count);
    rekey(first, count);
    const qreal before = m_rows.top(first);
    m_rows.setCount(m_model->rowCount());
    readGroups();
    if (isChangeAnimated(first, last))
        animate({.shiftedFrom = first + 1, .shift = before - m_rows.top(first + 1), .appears = true});
    updateGeometry();
    scheduleUpdate();
}

void List::rowsRemoved(int first, int last)
{
    finishAnimation();
    rememberFocus();
    shiftFocus(first, first - last - 1);
    Widget *leaving = isChangeAnimated(first, last) ? m_cells.take(first) : nullptr;
    for (int row = last; row >= first; --row) {
        if (Widget *cell = m_cells.take(row))
            giveBack(cell);
        m_outdated.remove(row);
    }
    rekey(first, first - last - 1);
    const qreal before = m_rows.top(last + 1);
    const bool hadTitle = m_rows.hasTitleAbove(first);
    m_rows.setCount(m_model->rowCount());
    readGroups();
    if (leaving) {
        keepFocusOf(leaving);
        // The title of a group stays when its first row leaves.
        const bool keepsTitle
            = hadTitle && m_rows.hasTitleAbove(first) && before - m_rows.top(first) == m_rows.rowHeight();
        animate(
            {.shiftedFrom = first, .shift = before - m_rows.top(first), .shiftsTitle = !keepsTitle, .cell = leaving});
    }
    updateGeometry();
    scheduleUpdate();
}

void List::dataChanged(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        if (m_cells.contains(row))
            m_outdated.insert(row);
    }
    scheduleUpdate();
}

bool List::isChangeAnimated(int first, int last) const
{
    const auto *model = qobject_cast<const AbstractItemModel *>(m_model.data());
    return first == last && model && model->isAnimated() && isOnDisplay() && !hasReducedMotion();
}

void List::animate(const Change &change)
{
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(changeTime);
        m_animation->setStartValue(0.0);
        m_animation->setEndValue(1.0);
        m_animation->setEasingCurve(QEasingCurve::OutCubic);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setAnimationProgress(value.toReal()); });
        connect(m_animation, &QVariantAnimation::finished, this, &List::finishAnimation);
    }
    m_change = change;
    m_rows.setShift(change.shiftedFrom, change.shift, change.shiftsTitle);
    m_animation->start();
}

void List::setAnimationProgress(qreal progress)
{
    m_change.progress = progress;
    m_rows.setShift(m_change.shiftedFrom, m_change.shift * (1 - progress), m_change.shiftsTitle);
    updateCells();
    updateGeometry();
    update();
}

void List::finishAnimation()
{
    if (m_change.shift == 0)
        return;
    m_animation->stop();
    if (m_change.cell)
        m_change.cell->setOpacity(1);
    if (m_change.cell && !m_change.appears)
        giveBack(m_change.cell);
    m_change = {};
    m_rows.setShift(0, 0);
    updateGeometry();
    update();
    scheduleUpdate();
}

void List::scheduleUpdate()
{
    if (m_isUpdateScheduled)
        return;
    m_isUpdateScheduled = true;
    QMetaObject::invokeMethod(this, &List::updateCells, Qt::QueuedConnection);
}

QRectF List::visibleRect()
{
    QGraphicsItem *clip = parentItem();
    while (clip && !(clip->flags() & ItemClipsChildrenToShape))
        clip = clip->parentItem();
    QGraphicsWidget *viewport = clip && clip->isWidget() ? static_cast<QGraphicsWidget *>(clip) : nullptr;
    if (m_viewport != viewport) {
        if (m_viewport)
            m_viewport->disconnect(this);
        m_viewport = viewport;
        if (viewport)
            connect(viewport, &QGraphicsWidget::geometryChanged, this, &List::scheduleUpdate);
    }
    const QRectF seen = viewport ? mapRectFromItem(viewport, viewport->rect()) : mapRectFromScene(scene()->sceneRect());
    return seen.intersected(QRectF(0, 0, size().width(), m_rows.height()));
}

void List::updateCells()
{
    m_isUpdateScheduled = false;
    if (!scene() || !isVisible() || !m_creator)
        return;
    const QRectF seen = visibleRect();
    const bool isEmpty = seen.isEmpty() || m_rows.count() == 0;
    const int first = isEmpty ? 0 : qMax(0, m_rows.rowAt(seen.top()) - spareRows);
    const int last = isEmpty ? -1 : qMin(m_rows.count() - 1, m_rows.rowAt(seen.bottom()) + spareRows);
    const QList<int> rows = m_cells.keys();
    rememberFocus();
    for (auto row = rows.crbegin(); row != rows.crend(); ++row) {
        if (*row < first || *row > last)
            giveBack(m_cells.take(*row));
    }
    for (int row = first; row <= last; ++row) {
        Widget *&cell = m_cells[row];
        if (!cell)
            cell = m_creator->createCell(m_model->index(row, 0), m_recycler);
        else if (m_outdated.contains(row))
            m_creator->updateCell(m_model->index(row, 0), cell);
        placeCell(row, cell);
    }
    m_outdated.clear();
    m_titles->place(m_rows, seen);
    m_recycler.hideAll();
    giveFocusBack();
    if (m_change.shift == 0)
        return;
    if (m_change.appears)
        m_change.cell = m_cells.value(m_change.shiftedFrom - 1);
    if (m_change.cell)
        m_change.cell->setOpacity(m_change.appears ? m_change.progress : 1 - m_change.progress);
}

void List::placeCell(int row, Widget *cell)
{
    if (cell->parentItem() != this)
        cell->setParentItem(this);
    cell->setGeometry(QRectF(0, qRound(m_rows.top(row)), size().width(), m_rows.rowHeight()));
    cell->setOpacity(1);
    cell->setVisible(true);
    // What is chosen by tapping is chosen by keys as well.
    if (m_selection && cell->focusPolicy() == Qt::NoFocus)
        cell->setFocusPolicy(Qt::TabFocus);
}

void List::styleChanged()
{
    Widget::styleChanged();
    // Later: the creator may not have heard of the new style yet.
    QMetaObject::invokeMethod(this, &List::followCellSize, Qt::QueuedConnection);
}

void List::followCellSize()
{
    const bool hasOtherTitles = m_showsGroups && m_rows.titleHeight() != m_titles->height();
    if (hasOtherTitles || (m_creator && m_rows.rowHeight() != m_creator->cellSize().height()))
        rebuild();
}

void List::exitDisplay()
{
    finishAnimation();
    Widget::exitDisplay();
}

QSizeF List::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return Widget::sizeHint(which, constraint);
    return styledSize(which, {m_creator ? m_creator->cellSize().width() : 0, m_rows.height()});
}

QVariant List::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemScenePositionHasChanged || (change == ItemVisibleHasChanged && isVisible()))
        updateCells();
    return Widget::itemChange(change, value);
}

void List::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    Widget::resizeEvent(event);
    updateCells();
}

void List::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Widget::paint(painter, option, widget);
    if (m_rows.count() == 0)
        return;
    const QColor separator = style().separatorColor;
    const QRectF line = paddedRect();
    const int last = m_rows.rowAt(option->exposedRect.bottom());
    for (int row = m_rows.rowAt(option->exposedRect.top()); row <= last; ++row) {
        if (isSelected(row))
            paintSelection(painter, row);
        // What is chosen ends at its own edge.
        const bool isEdge = row > 0 && isSelected(row) != isSelected(row - 1);
        if (separator.isValid() && row > 0 && !isEdge && !m_rows.hasTitleAbove(row))
            painter->fillRect(QRectF(line.left(), qRound(m_rows.top(row)), line.width(), 1), separator);
    }
}

} // namespace Touch
