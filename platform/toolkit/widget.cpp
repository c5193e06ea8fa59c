// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/widget.h"

#include "platform/toolkit/accessibleevents_p.h"
#include "platform/toolkit/accessiblewidget_p.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/window.h"

#include <QFocusEvent>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QPainter>

namespace Touch {

namespace {

void announce(Widget *widget, QAccessible::Event type)
{
    QAccessibleInterface *interface = AccessibleEvents::isListenedTo() ? accessibleOf(widget) : nullptr;
    if (!interface)
        return;
    QAccessibleEvent event(interface, type);
    AccessibleEvents::tell(&event);
}

} // namespace

Widget::Widget(QGraphicsItem *parent)
    : QGraphicsWidget(parent)
{
    connect(this, &QObject::objectNameChanged, this, &Widget::refreshStyle);
    connect(&Theme::instance(), &Theme::changed, this, &Widget::refreshStyle);
}

Widget::~Widget() = default;

void Widget::setStyleName(const QString &styleName)
{
    if (m_styleName == styleName)
        return;
    m_styleName = styleName;
    refreshStyle();
}

const Style &Widget::style() const
{
    if (!m_style || m_styledClass != metaObject()) {
        m_isStyleEarly = m_style != nullptr;
        m_styledClass = metaObject();
        m_style = Theme::instance().style(m_styleName, objectName(), m_styledClass, m_isInverted);
    }
    return *m_style;
}

Window *Widget::hostWindow() const
{
    if (!scene() || scene()->views().isEmpty())
        return nullptr;
    return qobject_cast<Window *>(scene()->views().constFirst());
}

QString Widget::accessibleName() const
{
    return m_accessibleName.isEmpty() ? shownText() : m_accessibleName;
}

void Widget::setAccessibleName(const QString &name)
{
    if (m_accessibleName == name)
        return;
    m_accessibleName = name;
    announceName();
}

void Widget::tell(QAccessibleEvent *event)
{
    AccessibleEvents::tell(event);
}

void Widget::announceName()
{
    announce(this, QAccessible::NameChanged);
}

QAccessible::Role Widget::accessibleRole() const
{
    return QAccessible::Grouping;
}

QAccessibleValueInterface *Widget::accessibleValue()
{
    return nullptr;
}

QStringList Widget::accessibleActions() const
{
    return {};
}

void Widget::doAccessibleAction(const QString &) { }

QString Widget::shownText() const
{
    return {};
}

QRectF Widget::paddedRect() const
{
    const QMarginsF padding = style().padding;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    return contentsRect().adjusted(mirrored ? padding.right() : padding.left(), padding.top(),
                                   mirrored ? -padding.left() : -padding.right(), -padding.bottom());
}

void Widget::refreshDisplay()
{
    const Window *window = hostWindow();
    const bool isNow = isVisible() && window && window->isOnScreen();
    if (m_isOnDisplay == isNow)
        return;
    m_isOnDisplay = isNow;
    if (isNow)
        enterDisplay();
    else
        exitDisplay();
}

void Widget::refreshStyle()
{
    const Window *window = hostWindow();
    m_isInverted = window && window->isInverted();
    m_style.reset();
    m_isStyleEarly = false;
    styleChanged();
}

void Widget::followDirection()
{
    if (!testAttribute(Qt::WA_SetLayoutDirection))
        unsetLayoutDirection();
}

void Widget::styleChanged()
{
    if (layout())
        layout()->invalidate();
    updateGeometry();
    update();
}

void Widget::enterDisplay() { }

void Widget::exitDisplay() { }

QSizeF Widget::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return styledSize(which, {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    // A layout of the toolkit has counted the padding in already.
    const QMarginsF padding = style().padding;
    const QSizeF content = layout() ? layout()->effectiveSizeHint(which, constraint).shrunkBy(padding) : QSizeF(0, 0);
    return styledSize(which, content);
}

QSizeF Widget::styledSize(Qt::SizeHint which, const QSizeF &content) const
{
    const Style &look = style();
    qreal left, top, right, bottom;
    getContentsMargins(&left, &top, &right, &bottom);
    QSizeF size = content.grownBy(look.padding).grownBy({left, top, right, bottom});
    if (which == Qt::PreferredSize && look.preferredSize.width() >= 0)
        size.setWidth(look.preferredSize.width());
    if (which == Qt::PreferredSize && look.preferredSize.height() >= 0)
        size.setHeight(look.preferredSize.height());
    if (which != Qt::MaximumSize)
        size = size.expandedTo(look.minimumSize);
    if (look.maximumSize.width() >= 0)
        size.setWidth(qMin(size.width(), look.maximumSize.width()));
    if (look.maximumSize.height() >= 0)
        size.setHeight(qMin(size.height(), look.maximumSize.height()));
    return size;
}

// In the tree that assistive technology walks through there is only what can be seen.
void Widget::announceVisibility()
{
    if (!scene())
        return;
    announce(this, isVisible() ? QAccessible::ObjectCreated : QAccessible::ObjectHide);
    announce(this, isVisible() ? QAccessible::ObjectShow : QAccessible::ObjectDestroyed);
}

QVariant Widget::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemVisibleHasChanged) {
        refreshDisplay();
        // A hidden item gives its place up; not asked for when only an ancestor was hidden.
        if (!parentItem() || parentItem()->isVisible()) {
            updateGeometry();
            announceVisibility();
        }
    } else if (change == ItemParentHasChanged) {
        // Graphics widgets hear of a new direction of their parent, but do not ask a new parent for its own.
        followDirection();
    } else if (change == ItemSceneHasChanged) {
        const Window *window = hostWindow();
        if (window && window->isInverted() != m_isInverted)
            refreshStyle();
        // The direction of the application may have changed while it was in no window.
        if (!parentItem())
            followDirection();
        refreshDisplay();
    }
    return QGraphicsWidget::itemChange(change, value);
}

void Widget::polishEvent()
{
    // What was derived from the style of a base class is wrong for this one.
    if (m_isStyleEarly || (m_style && m_styledClass != metaObject()))
        refreshStyle();
    QGraphicsWidget::polishEvent();
}

void Widget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LayoutDirectionChange)
        update();
    if (event->type() == QEvent::EnabledChange) {
        QAccessible::State changed;
        changed.disabled = true;
        QAccessibleStateChangeEvent state(this, changed);
        tell(&state);
    }
    QGraphicsWidget::changeEvent(event);
}

void Widget::focusInEvent(QFocusEvent *event)
{
    announce(this, QAccessible::Focus);
    const bool isByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    if (Window *window = isByKey ? hostWindow() : nullptr)
        window->setFocusShown(true);
    update();
    QGraphicsWidget::focusInEvent(event);
}

void Widget::focusOutEvent(QFocusEvent *event)
{
    update();
    QGraphicsWidget::focusOutEvent(event);
}

void Widget::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    paintBackground(painter,
                    isEnabled() || !style().disabledBackground.isValid() ? style().background
                                                                         : style().disabledBackground);
}

void Widget::paintBackground(QPainter *painter, const QColor &fill, bool hasBorder) const
{
    const Style &look = style();
    const bool drawsBorder = hasBorder && look.borderWidth > 0 && look.borderColor.isValid();
    if (!fill.isValid() && !drawsBorder)
        return;
    if (look.radius <= 0 && !drawsBorder) {
        painter->fillRect(rect(), fill);
        return;
    }
    const qreal inset = drawsBorder ? look.borderWidth / 2 : 0;
    const qreal radius = qMin(look.radius, qMin(rect().width(), rect().height()) / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(drawsBorder ? QPen(look.borderColor, look.borderWidth) : QPen(Qt::NoPen));
    painter->setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter->drawRoundedRect(rect().adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

void Widget::paintFocusRing(QPainter *painter) const
{
    const Window *window = hostWindow();
    if (hasFocus() && window && window->isFocusShown())
        paintRing(painter);
}

void Widget::paintRing(QPainter *painter) const
{
    const QColor color = style().focusColor;
    if (!color.isValid())
        return;
    constexpr qreal width = 2;
    const QRectF ring = rect().adjusted(width / 2, width / 2, -width / 2, -width / 2);
    const qreal radius = qMin(style().radius, qMin(ring.width(), ring.height()) / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(ring, radius, radius);
    painter->restore();
}

void Widget::paintIcon(QPainter *painter, const QRectF &place, const QString &iconId, const QColor &color) const
{
    const QSizeF size = style().iconSize;
    const QString id = layoutDirection() == Qt::RightToLeft ? Theme::mirroredIcon(iconId) : iconId;
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QPointF corner = place.center() - QPointF(size.width() / 2, size.height() / 2);
    painter->drawPixmap(QPointF(qRound(corner.x()), qRound(corner.y())),
                        Theme::instance().icon(id, size.toSize(), color, ratio));
}

} // namespace Touch
