// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/pressable.h"

/// One tone in the list: a mark that tells whether it is the chosen one, its title, and whether it is being played.
/// Works as a recycled cell.
class ToneItem : public Touch::Pressable
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
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

Q_SIGNALS:
    void clicked(const QString &path);

protected:
    QString shownText() const override;
    void tapped() override { Q_EMIT clicked(m_path); }

private:
    void paintMark(QPainter &painter, const QRectF &rect) const;
    void paintTexts(QPainter &painter, const QRectF &rect) const;
    void paintBars(QPainter &painter, const QRectF &rect) const;

    QString m_path;
    QString m_title;
    QString m_origin;
    bool m_isSelected = false;
    bool m_isPlaying = false;
};
