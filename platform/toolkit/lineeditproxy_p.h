// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsProxyWidget>

namespace Touch {

/** Carries a line edit in the scene and tells with which reason the focus comes and goes. */
class LineEditProxy : public QGraphicsProxyWidget
{
    Q_OBJECT

public:
    explicit LineEditProxy(QGraphicsItem *parent);
    ~LineEditProxy() override;

signals:
    void gainedFocus(Qt::FocusReason reason);
    void lostFocus(Qt::FocusReason reason);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace Touch
