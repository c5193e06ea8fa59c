// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/widgetrecycler.h"

#include "platform/toolkit/widget.h"

namespace Touch {

WidgetRecycler::WidgetRecycler() = default;

WidgetRecycler::~WidgetRecycler()
{
    qDeleteAll(m_widgets);
}

Widget *WidgetRecycler::take(const QString &typeName)
{
    for (qsizetype i = m_widgets.size() - 1; i >= 0; --i) {
        const QString name = QString::fromLatin1(m_widgets[i]->metaObject()->className());
        if (name == typeName || name.endsWith(QLatin1String("::") + typeName))
            return m_widgets.takeAt(i);
    }
    return nullptr;
}

void WidgetRecycler::recycle(Widget *widget)
{
    m_widgets.append(widget);
}

void WidgetRecycler::hideAll()
{
    for (Widget *widget : std::as_const(m_widgets))
        widget->setVisible(false);
}

} // namespace Touch
