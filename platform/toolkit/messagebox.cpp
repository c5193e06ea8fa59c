// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/messagebox.h"

#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

namespace Touch {

MessageBox::MessageBox(const QString &title, const QString &text, StandardButtons buttons, QGraphicsItem *parent)
    : Dialog(title, buttons, parent)
    , m_text(new Label(text, centralWidget()))
{
    m_text->setStyleName(QStringLiteral("DialogText"));
    m_text->setWordWrap(true);
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    column->addItem(m_text);
}

MessageBox::~MessageBox() = default;

QString MessageBox::text() const
{
    return m_text->text();
}

void MessageBox::setText(const QString &text)
{
    m_text->setText(text);
}

} // namespace Touch
