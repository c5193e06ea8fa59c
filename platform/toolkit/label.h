// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

#include <memory>
#include <optional>

namespace Touch {

class PreparedText;

/** A text, on one line that is elided where it does not fit, or wrapped into as many lines as it needs. */
class Label : public Widget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool showsWholeText READ showsWholeText)

public:
    explicit Label(const QString &text = QString(), QGraphicsItem *parent = nullptr);
    explicit Label(QGraphicsItem *parent);
    ~Label() override;

    QString text() const;
    void setText(const QString &text);

    /** The style's, unless it is set. Left is where a line starts, also for right-to-left. */
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    bool textElide() const { return m_elides; }
    void setTextElide(bool elides);
    bool wordWrap() const { return m_wraps; }
    void setWordWrap(bool wraps);
    /** Neither elided nor cut off. */
    bool showsWholeText() const;

    QAccessible::Role accessibleRole() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    void styleChanged() override;
    QString shownText() const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;

private:
    void updateFit();
    PreparedText &prepared() const;
    Qt::Alignment visualAlignment() const;

    std::unique_ptr<PreparedText> m_text;
    std::optional<Qt::Alignment> m_alignment;
    bool m_elides = true;
    bool m_wraps = false;
    mutable bool m_isStyled = false;
};

} // namespace Touch
