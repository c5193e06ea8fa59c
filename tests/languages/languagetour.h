// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QStringList>

#include <memory>

class MashupPage;
class QGraphicsItem;
class QGraphicsView;
class QWidget;
class SettingAlarmPage;

namespace Touch {
class ApplicationWindow;
}

/**
 * Visits what the application and the ring screen show, on a narrow phone, in the language of the process. It keeps a
 * picture of each and notes the texts that are elided or cut off. Needs the application object and an alarm daemon.
 */
class LanguageTour
{
public:
    LanguageTour(const QString &language, const QDir &pictures);
    ~LanguageTour();

    void visitMainPage();
    void visitEditor();
    void visitQuestions();
    void visitOptions();
    /** With either way of stopping the alarm, and the one that shows up where the others fail. */
    void visitRingScreens();

    /** What went wrong: "editor: Speicher…", or that something did not appear. */
    QStringList findings() const { return m_findings; }

private:
    void visitRepeatDays();
    void visitSnoozeTimes();
    void visitTones();
    void visitFolders();
    void visitRingScreen(const QString &stopGesture);
    /** What rings where no plug-in does. */
    void visitPlainRingScreen();
    void expectRoomBesideHeader();
    /** In the window that is in front. */
    void look(const QString &what);
    void look(const QString &what, QGraphicsView *window);
    void keepPicture(const QString &what, QWidget *window);
    void expect(bool isThere, const QString &what);

    QString m_language;
    QDir m_pictures;
    QStringList m_findings;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_mainPage;
    std::unique_ptr<SettingAlarmPage> m_editor;
};
