// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/combobox.h"

#include "platform/toolkit/choicerow_p.h"
#include "platform/toolkit/dialog.h"
#include "platform/toolkit/direction_p.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

namespace Touch {

ComboBox::ComboBox(QGraphicsItem *parent)
    : BasicListItem(TitleWithSubtitle, parent)
{
    setImage(QStringLiteral("icon-m-common-combobox-arrow"));
    connect(this, &ComboBox::clicked, this, &ComboBox::showPopup);
}

ComboBox::~ComboBox()
{
    delete m_popup;
}

QGraphicsLayout *ComboBox::createLayout()
{
    auto *layout = new Layout(this);
    auto *grid = new GridLayoutPolicy(layout);
    grid->setStyleName(QStringLiteral("BasicListItemLayout"));
    titleLabel()->setStyleName(QStringLiteral("CommonSubTitleTop"));
    subtitleLabel()->setStyleName(QStringLiteral("CommonTitleBottom"));
    imageWidget()->setStyleName(QStringLiteral("CommonComboBoxIcon"));
    grid->addItem(titleLabel(), 0, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    grid->addItem(subtitleLabel(), 1, 0, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    grid->addItem(imageWidget(), 0, 1, 2, 1, Qt::AlignCenter);
    grid->setColumnStretchFactor(0, 1);
    // The icon is in the middle of the row, however high that is.
    grid->setRowStretchFactor(1, 1);
    return layout;
}

void ComboBox::addItem(const QString &text)
{
    m_items.append(text);
}

void ComboBox::clear()
{
    dismissPopup();
    setCurrentIndex(-1);
    m_items.clear();
}

void ComboBox::setCurrentIndex(int index)
{
    const int wanted = index >= 0 && index < count() ? index : -1;
    if (m_currentIndex == wanted)
        return;
    m_currentIndex = wanted;
    setSubtitle(currentText());
    emit currentIndexChanged(wanted);
}

bool ComboBox::isPopupOpen() const
{
    return m_popup && m_popup->isOnDisplay();
}

void ComboBox::showPopup()
{
    if (isPopupOpen() || m_items.isEmpty())
        return;
    m_popup = new Dialog(title());
    takeDirection(m_popup, this);
    Widget *content = m_popup->centralWidget();
    auto *column = new LinearLayoutPolicy(new Layout(content), Qt::Vertical);
    ChoiceRow *current = nullptr;
    for (int i = 0; i < count(); ++i) {
        auto *row = new ChoiceRow(m_items[i], QAccessible::RadioButton, content);
        row->setCheckable(true);
        row->setChecked(i == m_currentIndex);
        current = row->isChecked() ? row : current;
        column->addItem(row);
        connect(row, &Button::clicked, this, [this, i] { choose(i); });
    }
    connect(m_popup, &SceneWindow::disappeared, this, &ComboBox::tellWhetherItIsOpen);
    m_popup->appear(hostWindow(), SceneWindow::DestroyWhenDone);
    tellWhetherItIsOpen();
    if (current)
        m_popup->startAt(current);
}

void ComboBox::tellWhetherItIsOpen()
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    tell(&event);
}

void ComboBox::choose(int index)
{
    if (m_popup)
        m_popup->accept();
    setCurrentIndex(index);
    emit activated(index);
}

void ComboBox::dismissPopup()
{
    if (m_popup)
        m_popup->dismiss();
}

} // namespace Touch
