// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

/// One tone in the list: a mark that tells whether it is the chosen one, its title, and whether it is being played.
/// Works as a recycled cell.
class ToneItem : public Touch::Widget
{
    Q_OBJECT

public:
    explicit ToneItem(QGraphicsItem *parent = nullptr);
    ~ToneItem() override;

    QString path() const { return m_path; }
    void setTone(const QString &path, const QString &title, const QString &origin);
    void setState(bool isSelected, bool isPlaying);
    bool isSelected() const { return m_isSelected; }
    bool isPlaying() const { return m_isPlaying; }

    QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

Q_SIGNALS:
    void clicked(const QString &path);

protected:
    QString shownText() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setPressed(bool isPressed);
    QRectF mirrored(const QRectF &rect) const;
    void paintMark(QPainter &painter, const QRectF &rect) const;
    void paintTexts(QPainter &painter, const QRectF &rect) const;
    void paintBars(QPainter &painter, const QRectF &rect) const;

    QString m_path;
    QString m_title;
    QString m_origin;
    bool m_isSelected = false;
    bool m_isPlaying = false;
    bool m_isPressed = false;
};
