// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/style.h"

#include <memory>
#include <QAccessible>
#include <QGraphicsWidget>

namespace Touch {

class Window;

/**
 * The base of everything in a window: a graphics widget that takes its look from the theme by style name,
 * object name and class. Owned by its parent item or by its scene, as any graphics item. GUI thread only.
 */
class Widget : public QGraphicsWidget
{
    Q_OBJECT
    Q_PROPERTY(QString styleName READ styleName WRITE setStyleName)

public:
    explicit Widget(QGraphicsItem *parent = nullptr);
    ~Widget() override;

    QString styleName() const { return m_styleName; }
    void setStyleName(const QString &styleName);

    /** Valid until the next change of style or theme. */
    const Style &style() const;

    /** Whether the user can see it: visible, in a window that is shown. Covered by another widget still
     * counts. */
    virtual bool isOnDisplay() const { return m_isOnDisplay; }
    /** The window it is in, or null. */
    Window *hostWindow() const;
    /** What is read out for it: the name it was given, or what it shows. */
    QString accessibleName() const;
    void setAccessibleName(const QString &name);
    virtual QAccessible::Role accessibleRole() const;
    /** What it is set to, if that is a number; otherwise null. */
    virtual QAccessibleValueInterface *accessibleValue();
    /** What else than giving it the focus may be done with it, by QAccessibleActionInterface's names. */
    virtual QStringList accessibleActions() const;
    virtual void doAccessibleAction(const QString &name);

    /** The contents rectangle less the style's padding, mirrored for right-to-left. */
    QRectF paddedRect() const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

    /** Called by the window when it is shown, hidden or shows its contents in the other colours. */
    void refreshDisplay();
    void refreshStyle();
    /** Takes its layout direction from what it is in, unless it was given one. */
    void followDirection();

protected:
    /** The style is another one now: drop what was derived from it. The base asks for a new layout and paint.
     */
    virtual void styleChanged();
    /** What it shows, for those who do not see it. */
    virtual QString shownText() const;
    /** Lets assistive technology know, if there is any. */
    static void tell(QAccessibleEvent *event);
    /** What it is called is another text now. */
    void announceName();
    /** It can be seen from now on: start what ticks. */
    virtual void enterDisplay();
    /** It can no longer be seen: stop what ticks. */
    virtual void exitDisplay();

    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void polishEvent() override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    /** A size of content only, grown by the padding and bounded by the style's sizes. */
    QSizeF styledSize(Qt::SizeHint which, const QSizeF &content) const;
    void paintBackground(QPainter *painter, const QColor &fill, bool hasBorder = true) const;
    /** Draws the ring if it has the focus and the window is worked by keyboard. */
    void paintFocusRing(QPainter *painter) const;
    /** Draws the ring that what has the focus bears. */
    void paintRing(QPainter *painter) const;
    /** An icon of the theme in the middle of a place, in the style's icon size and in its mirrored form if need be. */
    void paintIcon(QPainter *painter, const QRectF &place, const QString &iconId, const QColor &color) const;

private:
    void announceVisibility();

    QString m_styleName;
    QString m_accessibleName;
    bool m_isOnDisplay = false;
    bool m_isInverted = false;
    mutable std::shared_ptr<const Style> m_style;
    mutable const QMetaObject *m_styledClass = nullptr; ///< the class that the style is for
    mutable bool m_isStyleEarly = false;                ///< it was first asked for while a base was constructed
};

} // namespace Touch
