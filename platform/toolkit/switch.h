// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/button.h"

class QVariantAnimation;

namespace Touch {

/** A checkable pill with a knob that slides over. */
class Switch : public Button
{
    Q_OBJECT

public:
    explicit Switch(QGraphicsItem *parent = nullptr);
    ~Switch() override;

    /** Ends the slide that a change of state began: the knob stands where it belongs. */
    void settle();

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    /** At least the pill, which grows with the user's size of text. */
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void exitDisplay() override;

private:
    void slideKnob();
    void setKnob(qreal position);

    qreal m_knob = 0; ///< 0 off, 1 on
    QVariantAnimation *m_animation = nullptr;
};

} // namespace Touch
