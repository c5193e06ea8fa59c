// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/basiclistitem.h"

#include <QPointer>
#include <QStringList>

namespace Touch {

class Dialog;

/** A row with a title and one of several texts; a tap opens the list to choose from. */
class ComboBox : public BasicListItem
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit ComboBox(QGraphicsItem *parent = nullptr);
    ~ComboBox() override;

    int count() const { return int(m_items.size()); }
    void addItem(const QString &text);
    /** Empty for an index that there is not. */
    QString itemText(int index) const { return m_items.value(index); }
    /** Nothing is chosen afterwards. */
    void clear();

    /** -1 while nothing is chosen. */
    int currentIndex() const { return m_currentIndex; }
    /** An index that there is not chooses nothing. */
    void setCurrentIndex(int index);
    QString currentText() const { return itemText(m_currentIndex); }

    bool isPopupOpen() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::ComboBox; }

public slots:
    void showPopup();
    /** Closes the list; nothing changes. */
    void dismissPopup();

signals:
    void currentIndexChanged(int index);
    /** The user has chosen, maybe what was chosen before. */
    void activated(int index);

protected:
    QGraphicsLayout *createLayout() override;

private:
    void choose(int index);
    void tellWhetherItIsOpen();

    QStringList m_items;
    int m_currentIndex = -1;
    QPointer<Dialog> m_popup; ///< owned by its window
};

} // namespace Touch
