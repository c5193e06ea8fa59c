// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/objectmenu.h"

#include "platform/toolkit/action.h"
#include "platform/toolkit/choicerow_p.h"
#include "platform/toolkit/direction_p.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/window.h"

#include <QTextBoundaryFinder>

namespace Touch {

namespace {

/** A name may be a whole story; what there is to choose has to fit below it. */
QString heading(const QString &name)
{
    constexpr int longest = 120;
    if (name.size() <= longest)
        return name;
    QTextBoundaryFinder ends(QTextBoundaryFinder::Grapheme, name);
    ends.setPosition(longest);
    return name.left(ends.toPreviousBoundary()).trimmed() + QChar(u'\u2026');
}

} // namespace

ObjectMenu::ObjectMenu(Widget *owner, QGraphicsItem *parent)
    : Dialog(heading(owner->accessibleName()), NoButton, parent)
    , m_owner(owner)
{
    new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    const QList<QAction *> actions = actionsOf(owner);
    for (QAction *action : actions)
        addItem(action);
    connect(owner, &QObject::destroyed, this, &ObjectMenu::dismiss);
    connect(owner, &QGraphicsObject::visibleChanged, this, [this] {
        if (!m_owner->isVisible())
            dismiss();
    });
}

ObjectMenu::~ObjectMenu() = default;

void ObjectMenu::addItem(QAction *action)
{
    auto *row = new ChoiceRow(action->text(), QAccessible::MenuItem, centralWidget());
    auto *column = static_cast<LinearLayoutPolicy *>(static_cast<Layout *>(centralWidget()->layout())->policy());
    column->addItem(row);
    connect(row, &Button::clicked, action, [this, action] {
        const QPointer<QAction> chosen(action);
        accept();
        if (chosen)
            chosen->trigger();
    });
}

QList<QAction *> ObjectMenu::actionsOf(const Widget *owner)
{
    QList<QAction *> found;
    const QList<QAction *> actions = owner->actions();
    for (QAction *action : actions) {
        const auto *located = qobject_cast<const Action *>(action);
        if (located && located->location() & Action::ObjectMenuLocation && action->isVisible() && action->isEnabled())
            found.append(action);
    }
    return found;
}

Widget *ObjectMenu::ownerOf(QGraphicsItem *item)
{
    for (; item; item = item->parentItem()) {
        auto *widget = qobject_cast<Widget *>(item->toGraphicsObject());
        if (widget && !actionsOf(widget).isEmpty())
            return widget;
    }
    return nullptr;
}

ObjectMenu *ObjectMenu::open(Widget *owner)
{
    auto *menu = new ObjectMenu(owner);
    takeDirection(menu, owner);
    menu->appear(owner->hostWindow(), DestroyWhenDone);
    return menu;
}

void ObjectMenu::closeFor(const Widget *owner)
{
    const Window *window = owner->hostWindow();
    auto *menu = window ? qobject_cast<ObjectMenu *>(window->topSceneWindow()) : nullptr;
    if (menu && menu->owner() == owner)
        menu->dismiss();
}

} // namespace Touch
