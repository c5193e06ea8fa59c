// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessibleWidget>

namespace Touch {

class Widget;
class Window;

/** Makes the windows and widgets of the toolkit known to assistive technology; once is enough. */
void installAccessibility();

/** A window whose children are its scene windows. */
class AccessibleWindow : public QAccessibleWidget
{
public:
    explicit AccessibleWindow(Window *window);
    ~AccessibleWindow() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QList<Widget *> children() const;
};

} // namespace Touch
