// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/pressable.h"

#include <QTime>

namespace Touch {
class Switch;
}

struct TimeLook;

/// One alarm in a list: its time, its title, how it repeats, and a switch. Its enabled state is that of the switch;
/// the item itself always takes input. Works as a recycled cell: every property may be set at any time.
class AlarmListItem : public Touch::Pressable
{
    Q_OBJECT

public:
    enum ItemStyle {
        OneLine,       ///< the title alone
        WithRepeatLine ///< the repeat text under the title
    };

    explicit AlarmListItem(ItemStyle style, QGraphicsItem *parent = nullptr);
    ~AlarmListItem() override;

    long alarmCookie() const { return m_alarmCookie; }
    void setAlarmCookie(const long &cookie);
    /// The alarm's time of day; shown in the user's own format, an invalid one as nothing.
    QTime title() const { return m_title; }
    void setTitle(const QTime &time);
    /// The alarm's title.
    QString subTitle() const { return m_subTitle; }
    void setSubTitle(const QString &text);
    /// The alarm's repeat text.
    QString subText() const { return m_subText; }
    void setSubText(const QString &text);
    /// The repeat text is not elided: it takes more lines and smaller letters first.
    bool showsWholeSubText() const;
    /// Of the repeat text as it is drawn.
    int subTextPixelSize() const;
    QString alarmTone() const { return m_alarmTone; }
    void setAlarmTone(const QString &path);
    bool enabled() const;
    void setEnabled(bool enabled);
    /// In minutes.
    unsigned char snoozeValue() const { return m_snoozeValue; }
    void setSnoozeValue(unsigned char minutes);
    ItemStyle itemStyle() const { return m_itemStyle; }
    void setItemStyle(ItemStyle style);

    QAccessible::Role accessibleRole() const override { return QAccessible::ListItem; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

Q_SIGNALS:
    /// The row was tapped anywhere but on the switch.
    void clicked();
    /// The user, and nobody else, flipped the switch.
    void alarmStateChanged();

protected:
    /// Time, title and repeat text; the switch bears the same name.
    QString shownText() const override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void tapped() override { Q_EMIT clicked(); }
    void styleChanged() override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    bool isStacked() const;
    qreal lineHeight(const char *part) const;
    qreal twoRepeatLines() const;
    QRectF topLine() const;
    void arrange();
    QSizeF switchSize() const;
    TimeLook timeLook() const;
    qreal widestTime() const;
    QRectF textsRect() const;
    QSizeF textsRoom() const;
    qreal textsHeight() const;
    QSizeF repeatRoom() const;
    qreal repeatHeight() const;
    Touch::Style repeatStyle() const;
    void paintTime(QPainter &painter, const QRectF &rect) const;
    void paintTexts(QPainter &painter, const QRectF &rect) const;
    QString partName(const char *part) const;

    long m_alarmCookie = 0;
    QTime m_title;
    QString m_subTitle;
    QString m_subText;
    QString m_alarmTone;
    unsigned char m_snoozeValue = 0;
    ItemStyle m_itemStyle;

    Touch::Switch *m_switch;
};
