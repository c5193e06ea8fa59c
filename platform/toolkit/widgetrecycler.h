// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>

namespace Touch {

class Widget;

/** Widgets that are not needed at the moment, kept to be used again. It owns what it holds. */
class WidgetRecycler
{
public:
    WidgetRecycler();
    ~WidgetRecycler();

    /** The one given in last of a class, named without its namespace; null if there is none. */
    Widget *take(const QString &typeName);
    void recycle(Widget *widget);
    /** Takes off the display what is held; what is taken out is to be shown again. */
    void hideAll();
    int count() const { return int(m_widgets.size()); }

private:
    Q_DISABLE_COPY(WidgetRecycler)

    QList<Widget *> m_widgets;
};

} // namespace Touch
