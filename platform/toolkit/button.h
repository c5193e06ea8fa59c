// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/pressable.h"

#include <memory>

namespace Touch {

class PreparedText;

/** Something to press: text, icon or both, optionally one that stays down. */
class Button : public Pressable
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString iconID READ iconID WRITE setIconID)
    Q_PROPERTY(QString viewType READ viewType WRITE setViewType)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY toggled)
    Q_PROPERTY(bool showsWholeText READ showsWholeText)
    Q_PROPERTY(int shownTextSize READ shownTextSize)

public:
    explicit Button(const QString &text = QString(), QGraphicsItem *parent = nullptr);
    explicit Button(QGraphicsItem *parent);
    ~Button() override;

    QString text() const;
    void setText(const QString &text);
    /** Whether a text too long gets smaller before it is elided, as it does unless this is set to false. */
    bool textShrinks() const { return m_shrinks; }
    void setTextShrinks(bool shrinks);
    /** How large, in pixels, its text is drawn; and how large it would be, were it not for the limit below. */
    int shownTextSize() const;
    int fittedTextSize() const;
    /** A limit, so that it looks like buttons beside it whose longer texts get smaller; 0 for none. */
    void setLargestTextSize(int pixels);
    QString iconID() const { return m_iconId; }
    void setIconID(const QString &iconId);
    /** "icon" shows the icon alone, the text is then only read out; empty shows both. */
    QString viewType() const { return m_viewType; }
    void setViewType(const QString &viewType);

    bool isCheckable() const { return m_isCheckable; }
    void setCheckable(bool isCheckable);
    bool isChecked() const { return m_isChecked; }
    void setChecked(bool isChecked);
    /** The text, if it shows one, is neither elided nor cut off. */
    bool showsWholeText() const;

    /** As if the user had pressed it. */
    void click();

    QAccessible::Role accessibleRole() const override;
    QStringList accessibleActions() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

signals:
    void pressed();
    void released();
    void clicked(bool checked = false);
    void toggled(bool checked);

protected:
    void styleChanged() override;
    QString shownText() const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void tapped() override { click(); }
    void downChanged() override;

    QColor foregroundColor() const;
    QColor backgroundColor() const;

private:
    bool showsText() const;
    QSizeF contentSize() const;
    qreal besideText() const;
    PreparedText &prepared() const;

    std::unique_ptr<PreparedText> m_text;
    mutable bool m_isStyled = false;
    QString m_iconId;
    QString m_viewType;
    bool m_shrinks = true;
    int m_largestTextSize = 0;
    bool m_isCheckable = false;
    bool m_isChecked = false;
};

} // namespace Touch
