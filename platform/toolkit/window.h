// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QGraphicsObject>
#include <QGraphicsView>
#include <QPointer>

namespace Touch {

class KeyboardRoom;
class LongPress;
class SceneWindow;

/**
 * A window of the desktop that shows scene windows: pages, and sheets and banners above them. It does not own
 * those that are kept when done; the others die with it at the latest. Closing, the back key and Escape go one
 * step back: the topmost sheet is left; a window that shows only its page is closed, though by Escape only where it is
 * chained. The second tap of a double tap is not for what the first one brought under the finger. GUI thread only.
 */
class Window : public QGraphicsView
{
    Q_OBJECT

public:
    explicit Window(QWidget *parent = nullptr);
    ~Window() override;

    /** The window that the user works in: the active one, or the one shown last. Null if there is none. */
    static Window *active();

    QString styleName() const { return m_styleName; }
    /** A name that ends in "Inverted" inverts the window as well. */
    void setStyleName(const QString &styleName);

    /** Shows the contents in the colours of the dark variant. Who sits in the dark is never dazzled by it. */
    bool isInverted() const { return m_isInverted; }
    void setInverted(bool isInverted);

    /** Vertical is portrait. Follows the shape of the window unless it is locked. */
    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);
    bool isOrientationLocked() const { return m_isOrientationLocked; }
    void setOrientationLocked(bool isLocked);

    /** Shown and not minimised. */
    bool isOnScreen() const;
    /** What the user sees on top, banners left out; null if the window is empty. */
    SceneWindow *topSceneWindow() const;
    /** From bottom to top. */
    QList<SceneWindow *> sceneWindows() const { return m_stack; }

    /** What has the keyboard's focus, or had it last. */
    const QGraphicsItem *lastFocused() const { return m_lastFocused; }
    /** Whether what has the focus shows it: from the first key on, until the next touch. */
    bool isFocusShown() const { return m_isFocusShown; }
    void setFocusShown(bool isShown);

    /** Leaves the topmost scene window as its cancel button would; false if there is nothing but a page. */
    bool stepBack();
    /** Whether going back from a scene window leads to another one, here or in the window that this is chained to. */
    bool leadsBackFrom(const SceneWindow *sceneWindow) const;
    /** Closes it, whatever lies above the page. */
    void closeAtOnce();

    QSize sizeHint() const override;

signals:
    void orientationChanged(Qt::Orientation orientation);
    /** A scene window came to the top or went. */
    void stackChanged();

protected:
    /** Whether going back from the only thing it shows closes it at once, rather than leaving that thing. */
    virtual bool closesInsteadOfLast() const { return true; }
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class SceneWindow;

    void present(SceneWindow *sceneWindow);
    void withdraw(SceneWindow *sceneWindow);
    void forget(SceneWindow *sceneWindow);
    void updateCovered();
    void finishTransitions();
    SceneWindow *sceneWindowAt(const QPoint &place) const;
    bool isStrayTap(const QMouseEvent *event);
    bool openMenuOfFocus();
    void applyOrientation(Qt::Orientation orientation);
    void applyStyle();
    void refreshDisplay();

    QString m_styleName;
    bool m_isInverted = false;
    bool m_isOrientationLocked = false;
    bool m_closesAtOnce = false;
    Qt::Orientation m_orientation = Qt::Vertical;
    QList<SceneWindow *> m_stack; ///< appearing or shown, bottom to top
    QList<SceneWindow *> m_known; ///< all that are in the scene

    // The keyboard
    QPointer<QGraphicsObject> m_lastFocused;
    bool m_isFocusShown = false;

    // The last press
    std::optional<quint64> m_pressTime; ///< in milliseconds
    QPoint m_pressPlace;
    QPointer<SceneWindow> m_pressed;
    LongPress *m_longPress;
    KeyboardRoom *m_keyboardRoom = nullptr;
};

} // namespace Touch
