// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/qsparqlconnection.h"
#include "platform/toolkit/sheet.h"

#include <QFileInfo>
#include <QPointer>
#include <QSettings>

#include <memory>

class AlarmEditorListItem;
class AlertTone;
class AlertToneBrowserSheet;
class RepeatingRules;

namespace Touch {
class ApplicationWindow;
class ComboBox;
} // namespace Touch

/**
 * The sheet of what else an alarm has: when it repeats, how long it snoozes, its tone. It has a window of its own,
 * chained to the one it was made in. The current values are what the controls show, and the saved ones what Cancel goes
 * back to; Save makes tone and snooze the defaults of the next new alarm as well. Lives as long as the editor that made
 * it. GUI thread; a tone's title comes later, and without one its file is named.
 */
class AlarmOptionsPage : public Touch::Sheet
{
    Q_OBJECT

public:
    AlarmOptionsPage();
    ~AlarmOptionsPage() override;

    /** Fills the sheet. The cookie 4294967295 stands for a new alarm, which takes tone and snooze from the preferences. */
    void load(quint32 cookie, const QString &tone, unsigned int snooze);
    /** Shows the sheet in its own window, and asks what its tone is called. */
    void appear();
    /** Closes what the sheet has open above itself. */
    void resetContent();

    QString tone() const { return m_tone; }
    /** Of SnoozeChoices. */
    int snoozeIndex() const;
    QList<int> repeatDays() const { return m_repeatDays; }

public slots:
    void repeatingRulesButtonClicked();
    void handleRepeatingRulesDialogAccepted();
    void handleRepeatingRulesDialogRejected();
    void save();
    void cancel();
    void toneClicked();
    void toneSelected();
    void queryResultAvailable();
    /** The place of x in an ascending table between two places, both included; -1 if it is not there. */
    int binarySearch(const int table[], int x, int low, int high);

private:
    void buildWindow();
    void buildContent();
    void buildHeader();
    void loadTone(const QString &tone);
    void loadSnooze(unsigned int minutes);
    void showRepeatRule();
    void setTone(const QString &path);
    void askForTitle();
    void makeToneBrowser();

    std::unique_ptr<Touch::ApplicationWindow> m_window;
    QPointer<RepeatingRules> m_repeatingRules; ///< the one shown; deletes itself
    AlarmEditorListItem *m_repeatItem = nullptr;
    QList<int> m_repeatDays;
    bool m_isRepeating = false;
    Touch::ComboBox *m_snoozeComboBox = nullptr;
    AlarmEditorListItem *m_toneItem = nullptr;
    QString m_tone;
    QFileInfo m_toneFile; ///< always that of the tone
    QSettings m_settings;
    const QString m_defaultTone;
    std::unique_ptr<AlertTone> m_alertTone; ///< with its browser, made when it is first needed
    std::unique_ptr<AlertToneBrowserSheet> m_toneBrowser;
    QSparqlConnection m_store;

    // What Cancel goes back to.
    int m_savedSnoozeIndex;
    QString m_savedTone;
    QList<int> m_savedRepeatDays;
    bool m_isSavedRepeating = false;
};
