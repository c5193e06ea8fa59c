// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

#include <QPointer>

class QVariantAnimation;

namespace Touch {

/**
 * What appears in a window and goes again: page, sheet, banner. It comes and goes with a short transition
 * during which it already takes (or no longer takes) all input; a press or a key ends the transition at once.
 * Kept when done, it belongs to whoever made it; otherwise to the window. Without motion if
 * CLOCK_REDUCED_MOTION is 1.
 */
class SceneWindow : public Widget
{
    Q_OBJECT

public:
    enum DeletionPolicy {
        KeepWhenDone,        ///< only hidden when it goes
        DestroyWhenDone,     ///< deleted when it has disappeared
        DestroyWhenDismissed ///< deleted when it was dismissed
    };
    Q_ENUM(DeletionPolicy)

    explicit SceneWindow(QGraphicsItem *parent = nullptr);
    ~SceneWindow() override;

    /** Shows it on top of its kind; without a window, in the active one. */
    void appear(Window *window = nullptr, DeletionPolicy policy = KeepWhenDone);
    /** Hides it. Nothing happens if it is not on display. */
    void disappear();
    /** Hides it because the user is done with it. */
    void dismiss();

    /** From appear() on until it is told to go, also while something covers it. */
    bool isOnDisplay() const override { return m_state == State::Appearing || m_state == State::Shown; }
    bool isInTransition() const { return m_state == State::Appearing || m_state == State::Disappearing; }

signals:
    /** It stands in its place. */
    void appeared();
    /** It is gone from the display. */
    void disappeared();
    /** The user is done with it; after disappeared(). */
    void dismissed();

protected:
    /** Windows of a higher layer are above those of a lower one. */
    virtual int layer() const = 0;
    /** Whether nothing can be seen behind it; what it covers is then not painted at all. */
    virtual bool coversWindow() const { return true; }
    virtual bool takesInput() const { return true; }
    virtual QRectF placement(const QSizeF &windowSize) const;
    virtual void aboutToAppear();
    /** It is told to go, by whomever; before anything of that is seen. */
    virtual void aboutToLeave();
    /** What Escape and the window's close button do to it while it is on top. */
    virtual void stepBack();
    /** The window it appeared in last, or is about to appear in. */
    Window *targetWindow() const;
    /** Paints one moment of the transition: 0 is gone, 1 is in its place. */
    virtual void setTransition(qreal progress);
    /** Stays at one moment of the transition, as long as a finger holds it there; when it leaves, it goes on from it. */
    void holdTransition(qreal progress);

    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void wheelEvent(QGraphicsSceneWheelEvent *event) override;
    /** Goes round within it, in the order in which it is read. */
    bool focusNextPrevChild(bool next) override;

private:
    friend class Window;
    enum class State { Hidden, Appearing, Shown, Disappearing };

    bool coversNow() const { return coversWindow() && !isInTransition() && m_held == 1; }
    void leave(bool isDismissed);
    void startTransition(State state);
    void finishTransition();
    void transitionDone();
    void gone();
    void place(const QSizeF &windowSize);
    void leaveScene();
    void rememberFocus();
    void recallFocus();

    State m_state = State::Hidden;
    DeletionPolicy m_policy = KeepWhenDone;
    bool m_isDismissed = false;
    qreal m_held = 1; ///< where in its transition
    QPointer<Window> m_window;
    QPointer<QGraphicsObject> m_focusItem; ///< what had the focus before something came above
    QVariantAnimation *m_animation = nullptr;
};

} // namespace Touch
