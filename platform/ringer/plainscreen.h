// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QList>
#include <QWidget>

class QLabel;
class QPushButton;

namespace Ringer {

/**
 * The screen of last resort, for an alarm whose plug-in cannot be loaded: time, title, Snooze and Stop on the bare
 * widget set, without a theme. Its texts follow the user's size of text as far as they fit. Shows the alarms one after
 * the other. Owned by PluginLoader.
 */
class PlainScreen : public QWidget, public RingPlugin
{
    Q_OBJECT

public:
    PlainScreen();
    ~PlainScreen() override;

    void setAnswers(Answers *answers) override;
    void show(const Alarm &alarm) override;
    void hide(quint32 cookie) override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setTextScale(qreal scale);
    void fitTexts();
    void refresh();
    void snooze();
    void dismiss();

    Answers *m_answers = nullptr;
    QList<Alarm> m_alarms; ///< the first is the one on the screen
    qreal m_textScale;
    QLabel *m_time;
    QLabel *m_title;
    QPushButton *m_snooze;
    QPushButton *m_stop;
};

} // namespace Ringer
