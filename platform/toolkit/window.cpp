// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/window.h"

#include "platform/toolkit/accessiblewindow_p.h"
#include "platform/toolkit/application.h"
#include "platform/toolkit/keyboardroom_p.h"
#include "platform/toolkit/longpress_p.h"
#include "platform/toolkit/scenewindow.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/viewport_p.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGraphicsLayout>

namespace Touch {

namespace {

constexpr QSize defaultSize(480, 854);

QList<Window *> &allWindows()
{
    static QList<Window *> windows;
    return windows;
}

template <typename Function>
void forEachWidget(const QGraphicsScene *scene, Function function)
{
    const QList<QGraphicsItem *> items = scene->items();
    for (QGraphicsItem *item : items) {
        if (item->isWidget())
            function(static_cast<QGraphicsWidget *>(item));
    }
}

} // namespace

Window::Window(QWidget *parent)
    : QGraphicsView(parent)
    , m_longPress(new LongPress(this))
{
    installAccessibility();
    allWindows().append(this);
    setScene(new QGraphicsScene(this));
    m_keyboardRoom = new KeyboardRoom(this);
    // Few items, many of them moving: an index costs more than it finds.
    scene()->setItemIndexMethod(QGraphicsScene::NoIndex);
    setViewport(makeViewport());
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportUpdateMode(isPaintedByOpenGl(viewport()) ? FullViewportUpdate : MinimalViewportUpdate);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    resize(defaultSize);
    applyStyle();
    connect(&Theme::instance(), &Theme::changed, this, &Window::applyStyle);
    connect(scene(), &QGraphicsScene::focusItemChanged, this, [this](QGraphicsItem *item) {
        if (item)
            m_lastFocused = item->toGraphicsObject();
    });
}

Window::~Window()
{
    allWindows().removeAll(this);
    // The scene takes the focus from its items when it goes, after this.
    scene()->disconnect(m_keyboardRoom);
    scene()->disconnect(this);
    // One may take others with it, as a choice does with its open list.
    while (!m_known.isEmpty())
        m_known.constLast()->leaveScene();
}

Window *Window::active()
{
    if (auto *window = qobject_cast<Window *>(QApplication::activeWindow()))
        return window;
    return allWindows().isEmpty() ? nullptr : allWindows().constLast();
}

void Window::setStyleName(const QString &styleName)
{
    if (m_styleName == styleName)
        return;
    m_styleName = styleName;
    if (styleName.endsWith(QLatin1String("Inverted")))
        setInverted(true);
    applyStyle();
}

void Window::setInverted(bool isInverted)
{
    if (m_isInverted == isInverted)
        return;
    m_isInverted = isInverted;
    applyStyle();
    forEachWidget(scene(), [](QGraphicsWidget *item) {
        if (auto *widget = qobject_cast<Widget *>(item))
            widget->refreshStyle();
    });
}

void Window::setOrientation(Qt::Orientation orientation)
{
    applyOrientation(orientation);
}

void Window::setOrientationLocked(bool isLocked)
{
    m_isOrientationLocked = isLocked;
    if (!isLocked)
        applyOrientation(width() > height() ? Qt::Horizontal : Qt::Vertical);
}

void Window::applyOrientation(Qt::Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    forEachWidget(scene(), [](QGraphicsWidget *item) {
        if (item->layout())
            item->layout()->invalidate();
    });
    emit orientationChanged(orientation);
}

bool Window::isOnScreen() const
{
    return isVisible() && !isMinimized();
}

SceneWindow *Window::topSceneWindow() const
{
    for (auto it = m_stack.crbegin(); it != m_stack.crend(); ++it) {
        if ((*it)->takesInput())
            return *it;
    }
    return nullptr;
}

void Window::setFocusShown(bool isShown)
{
    if (m_isFocusShown == isShown)
        return;
    m_isFocusShown = isShown;
    if (QGraphicsItem *item = scene()->focusItem())
        item->update();
}

bool Window::stepBack()
{
    finishTransitions();
    SceneWindow *top = topSceneWindow();
    if (!top || !leadsBackFrom(top))
        return false;
    top->stepBack();
    return true;
}

bool Window::leadsBackFrom(const SceneWindow *sceneWindow) const
{
    return !closesInsteadOfLast() || (!m_stack.isEmpty() && m_stack.constFirst() != sceneWindow);
}

void Window::closeAtOnce()
{
    m_closesAtOnce = true;
    close();
    m_closesAtOnce = false;
}

QSize Window::sizeHint() const
{
    return defaultSize;
}

void Window::present(SceneWindow *sceneWindow)
{
    if (sceneWindow->scene() != scene())
        scene()->addItem(sceneWindow);
    if (!m_known.contains(sceneWindow))
        m_known.append(sceneWindow);
    if (SceneWindow *top = topSceneWindow(); top && sceneWindow->takesInput())
        top->rememberFocus();
    m_stack.removeAll(sceneWindow);
    const auto above = std::find_if(m_stack.begin(), m_stack.end(), [sceneWindow](const SceneWindow *other) {
        return other->layer() > sceneWindow->layer();
    });
    m_stack.insert(above, sceneWindow);
    for (int i = 0; i < m_stack.size(); ++i)
        m_stack[i]->setZValue(i);
    sceneWindow->place(viewport()->size());
    emit stackChanged();
}

void Window::withdraw(SceneWindow *sceneWindow)
{
    const bool tookInput = topSceneWindow() == sceneWindow;
    m_stack.removeAll(sceneWindow);
    updateCovered();
    if (SceneWindow *top = topSceneWindow(); top && tookInput)
        top->recallFocus();
    emit stackChanged();
}

void Window::forget(SceneWindow *sceneWindow)
{
    m_known.removeAll(sceneWindow);
    if (m_stack.contains(sceneWindow))
        withdraw(sceneWindow);
}

void Window::updateCovered()
{
    bool isCovered = false;
    for (auto it = m_stack.crbegin(); it != m_stack.crend(); ++it) {
        (*it)->setVisible(!isCovered);
        isCovered = isCovered || (*it)->coversNow();
    }
}

void Window::finishTransitions()
{
    const QList<SceneWindow *> known = m_known;
    for (SceneWindow *sceneWindow : known) {
        if (m_known.contains(sceneWindow))
            sceneWindow->finishTransition();
    }
}

void Window::applyStyle()
{
    const auto style = Theme::instance().style(m_styleName, objectName(), metaObject(), m_isInverted);
    setBackgroundBrush(style->background);
}

void Window::refreshDisplay()
{
    forEachWidget(scene(), [](QGraphicsWidget *item) {
        if (auto *widget = qobject_cast<Widget *>(item))
            widget->refreshDisplay();
    });
}

// Tab never gets as far as to keyPressEvent().
bool Window::event(QEvent *event)
{
    const auto *key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event) : nullptr;
    if (key && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)) {
        finishTransitions();
        SceneWindow *top = topSceneWindow();
        const bool isBack = key->key() == Qt::Key_Backtab || key->modifiers().testFlag(Qt::ShiftModifier);
        if (top && !scene()->focusItem())
            return top->focusNextPrevChild(!isBack);
    }
    return QGraphicsView::event(event);
}

void Window::closeEvent(QCloseEvent *event)
{
    const auto *application = qobject_cast<const Application *>(QCoreApplication::instance());
    const bool isQuitting = application && application->isQuitting();
    event->setAccepted(m_closesAtOnce || isQuitting || !stepBack());
}

void Window::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    scene()->setSceneRect(QRectF(QPointF(0, 0), viewport()->size()));
    if (!m_isOrientationLocked)
        applyOrientation(width() > height() ? Qt::Horizontal : Qt::Vertical);
    for (SceneWindow *sceneWindow : std::as_const(m_known))
        sceneWindow->place(viewport()->size());
    m_keyboardRoom->update();
}

void Window::showEvent(QShowEvent *event)
{
    allWindows().removeAll(this);
    allWindows().append(this);
    QGraphicsView::showEvent(event);
    refreshDisplay();
}

void Window::hideEvent(QHideEvent *event)
{
    // Another one that is still shown is the one to work in.
    allWindows().removeAll(this);
    allWindows().prepend(this);
    QGraphicsView::hideEvent(event);
    refreshDisplay();
}

void Window::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && scene())
        refreshDisplay();
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    for (SceneWindow *sceneWindow : std::as_const(m_known))
        sceneWindow->followDirection();
}

} // namespace Touch
