// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/scenewindow.h"

#include <QHash>

namespace Touch {

class Button;
class Label;
class LinearLayoutPolicy;
class PannableViewport;
class StylableWidget;

/**
 * A question in the middle of its dimmed window: a title, the central widget, which is panned where it does not fit,
 * and a row of buttons, one below the other where they do not fit. A tap beside it, Escape and the window's close
 * button reject it. It leaves the display first and tells what was chosen then. Owns what is in it.
 */
class Dialog : public SceneWindow
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    enum StandardButton {
        NoButton = 0,
        Ok = 0x400,        ///< accepts
        Cancel = 0x400000, ///< rejects
        Done = 0x10000000  ///< accepts
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton)
    enum Result { Rejected, Accepted };
    Q_ENUM(Result)

    explicit Dialog(const QString &title, StandardButtons buttons = NoButton, QGraphicsItem *parent = nullptr);
    explicit Dialog(QGraphicsItem *parent = nullptr);
    ~Dialog() override;

    /** Shown above the content unless it is empty. */
    QString title() const;
    void setTitle(const QString &title);

    Widget *centralWidget() const { return m_centralWidget; }

    /** One of the standard buttons; null if the dialog was made without it. */
    Button *standardButton(StandardButton button) const { return m_standardButtons.value(button); }
    /** Adds a button of one's own after those there are; pressing it accepts the dialog, then emits clicked(). */
    Button *addButton(const QString &text);

    /** Pans to something in the central widget and lets the keyboard start there. */
    void startAt(QGraphicsWidget *item);

    QAccessible::Role accessibleRole() const override { return QAccessible::Dialog; }

public slots:
    void accept();
    void reject();

signals:
    void accepted();
    void rejected();
    /** After accepted() or rejected(), with a Result. */
    void finished(int result);

protected:
    int layer() const override { return 2; }
    bool coversWindow() const override { return false; }
    void aboutToAppear() override;
    QString shownText() const override { return title(); }
    void stepBack() override;
    void setTransition(qreal progress) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    /** The arrows lead from control to control as Tab does. */
    void keyPressEvent(QKeyEvent *event) override;
    void styleChanged() override;

private:
    Button *makeButton(const QString &text, const QString &styleName);
    void addStandardButtons(StandardButtons buttons);
    void finish(Result result);
    void arrange();
    void arrangeButtons(qreal width);
    bool isOutside(const QGraphicsSceneMouseEvent *event) const;

    StylableWidget *m_panel;
    Label *m_title;
    PannableViewport *m_viewport;
    Widget *m_centralWidget;
    Widget *m_buttonRow;
    LinearLayoutPolicy *m_buttonsInRow;
    LinearLayoutPolicy *m_buttonsInColumn;
    QHash<StandardButton, Button *> m_standardButtons;
    bool m_isPressedOutside = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Dialog::StandardButtons)

} // namespace Touch
