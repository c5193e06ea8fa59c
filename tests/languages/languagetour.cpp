// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/languages/languagetour.h"

#include "alarmlist/emptylisthint.h"
#include "alarmlist/notices/informationbanner.h"
#include "alarms/qmalarmevent.h"
#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "editor/repeatingrules.h"
#include "editor/settingalarmpage.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/clockwidgets/tonefileitem_p.h"
#include "platform/clockwidgets/tonefilesheet_p.h"
#include "platform/ringer/plainscreen.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/theme.h"
#include "tests/ringer/ringscreen.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"

#include <algorithm>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

using Touch::SceneWindow;

namespace {

constexpr QSize Narrow(360, 720);
constexpr qreal LeastGap = 12;
// On a busy machine.
constexpr int Patience = 30'000;

/** Of this class, above all else in the window; null if something else is. */
template <typename T>
T *onTopOf(const Touch::Window *window)
{
    auto *top = qobject_cast<T *>(window->topSceneWindow());
    return top && top->isOnDisplay() ? top : nullptr;
}

/** In the window, or in what can be panned there. */
bool canBeReached(const QGraphicsItem *item, const QGraphicsView *window)
{
    for (const QGraphicsItem *above = item; above; above = above->parentItem()) {
        const auto *viewport = qobject_cast<const Touch::PannableViewport *>(above->toGraphicsObject());
        if (viewport && viewport->panDirection().testFlag(Qt::Vertical))
            return viewport->widget()->rect().contains(viewport->widget()->mapRectFromItem(item, item->boundingRect()));
    }
    return QRectF(window->viewport()->rect()).contains(item->sceneBoundingRect());
}

/** Digits reach neither up nor down: their line is lower than one of letters. */
bool isBigTime(const QGraphicsObject *object)
{
    return object->property("styleName").toString().startsWith("RingTime");
}

bool isSeen(const QGraphicsObject *object, const QGraphicsView *window)
{
    return (object->property("showsWholeText").toBool() || isBigTime(object)) && canBeReached(object, window);
}

bool showsWholeText(const QLabel *label)
{
    const QRect room = label->contentsRect();
    const QRect endless(0, 0, room.width(), QWIDGETSIZE_MAX);
    const int lines = label->wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine;
    const QSize needed = label->fontMetrics().boundingRect(endless, lines, label->text()).size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

bool showsWholeText(const QPushButton *button)
{
    return button->fontMetrics().horizontalAdvance(button->text()) < button->width();
}

} // namespace

LanguageTour::LanguageTour(const QString &language, const QDir &pictures)
    : m_language(language)
    , m_pictures(pictures)
    , m_window(std::make_unique<Touch::ApplicationWindow>())
{
    m_window->resize(Narrow);
}

LanguageTour::~LanguageTour()
{
    m_editor->dismiss();
}

void LanguageTour::expect(bool isThere, const QString &what)
{
    if (!isThere)
        m_findings << "not there: " + what;
}

void LanguageTour::look(const QString &what)
{
    look(what, Touch::Window::active());
}

void LanguageTour::look(const QString &what, QGraphicsView *window)
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    const auto items = window->scene()->items();
    for (const QGraphicsItem *item : items) {
        const QGraphicsObject *object = item->toGraphicsObject();
        const bool isText = object && object->isVisible() && object->property("showsWholeText").isValid();
        if (isText && !isSeen(object, window))
            m_findings << what + ": " + object->property("text").toString();
        const auto *alarm = qobject_cast<const AlarmListItem *>(object);
        if (alarm && !alarm->showsWholeSubText())
            m_findings << what + ": " + alarm->subText();
        const auto *field = qobject_cast<const Touch::TextEdit *>(object);
        if (field && field->text().isEmpty() && !field->showsWholePrompt())
            m_findings << what + ": " + field->prompt();
    }
    keepPicture(what, window);
}

void LanguageTour::keepPicture(const QString &what, QWidget *window)
{
    const QString large = Touch::Theme::instance().textScale() > 1 ? "-large" : "";
    const QString file = QStringLiteral("language-%1-%2%3.png").arg(m_language, what, large);
    expect(window->grab().save(m_pictures.filePath(file)), "picture " + file);
}

void LanguageTour::visitMainPage()
{
    m_mainPage = std::make_unique<MashupPage>();
    m_mainPage->appear(m_window.get());
    m_window->show();
    expect(QTest::qWaitForWindowExposed(m_window.get(), Patience), "window");
    const auto *hint = Support::itemIn<EmptyListHint>(m_mainPage.get());
    expect(hint && QTest::qWaitFor([hint] { return hint->isVisible(); }, Patience), "what to do with an empty list");
    look("empty");
    Support::addAlarm(QTime(6, 30), "06:30", {1, 2, 3, 4, 5, 6});
    Support::addAlarm(QTime(8, 45), "08:45", {0, 6});
    Support::addSwitchedOffAlarm(QTime(22, 0), qtTrId("qtn_cloc_alarm_title"), {0, 1, 2, 3, 4, 5, 6});
    expect(QTest::qWaitFor([this] { return Support::countIn<AlarmListItem>(m_mainPage.get()) == 3; }, Patience),
           "alarms");
    look("main");
    expectRoomBesideHeader();
    Touch::ObjectMenu::open(Support::itemIn<AlarmListItem>(m_mainPage.get()));
    expect(onTopOf<Touch::ObjectMenu>(m_window.get()), "menu of an alarm");
    look("menu");
    m_window->stepBack();
}

void LanguageTour::expectRoomBesideHeader()
{
    const QRectF header = Support::itemIn<Touch::Label>(m_mainPage.get(), "AlarmsHeader")->sceneBoundingRect();
    const QRectF button = Support::itemIn<Touch::Button>(m_mainPage.get(), "newAlarmButton")->sceneBoundingRect();
    const qreal gap = qMax(button.left() - header.right(), header.left() - button.right());
    expect(gap >= LeastGap, "room between the header and the button beside it");
}

void LanguageTour::visitEditor()
{
    m_editor = std::make_unique<SettingAlarmPage>();
    m_editor->loadAlarm(Clock::QmAlarmEvent::NotStored, QTime(), QString(), QString(), true, 10);
    m_editor->appear(m_window.get());
    look("editor-new");
    const quint32 cookie = Support::addAlarm(QTime(7, 5), qtTrId("qtn_cloc_alarm_title"), {1, 2, 3, 4, 5, 6});
    m_editor->loadAlarm(cookie, QTime(7, 5), qtTrId("qtn_cloc_alarm_title"), QString(), true, 10);
    look("editor");
}

void LanguageTour::visitQuestions()
{
    m_editor->showResetAlarmDialog(Clock::QmAlarmEvent(m_editor->getAlarmCookie()));
    look("question");
    m_window->stepBack();
    for (const char *notice : {"qtn_cloc_alarm_save_error", "qtn_cloc_alarm_delete_error", "qtn_sond_file_unplayable",
                               "qtn_sond_file_silent"}) {
        showInformationBanner(qtTrId(notice).replace("%1", "Zebra crossing"));
        look("notice");
    }
    showInformationBanner(qtTrId("qtn_cloc_time_left_alarm").arg(qtTrId("qtn_cloc_about_days", 12)));
    look("time-left");
    hideInformationBanner();
}

void LanguageTour::visitOptions()
{
    m_editor->displayOptionsPage();
    const auto isShown = [] { return onTopOf<AlarmOptionsPage>(Touch::Window::active()) != nullptr; };
    if (!QTest::qWaitFor(isShown, Patience)) {
        expect(false, "options");
        return;
    }
    Touch::Window::active()->resize(Narrow);
    const auto *tone
        = Support::itemIn<AlarmEditorListItem>(Touch::Window::active()->topSceneWindow(), "toneBasicListItem");
    expect(QTest::qWaitFor([tone] { return !tone->subtitle().isEmpty(); }, Patience), "name of the tone");
    look("options");
    visitRepeatDays();
    visitSnoozeTimes();
    visitTones();
}

void LanguageTour::visitRepeatDays()
{
    Touch::Window *window = Touch::Window::active();
    onTopOf<AlarmOptionsPage>(window)->repeatingRulesButtonClicked();
    expect(onTopOf<RepeatingRules>(window), "days to repeat");
    look("repeat");
    window->stepBack();
}

void LanguageTour::visitSnoozeTimes()
{
    Touch::Window *window = Touch::Window::active();
    auto *choice = Support::itemIn<Touch::ComboBox>(onTopOf<AlarmOptionsPage>(window));
    choice->showPopup();
    expect(choice->isPopupOpen(), "snooze times");
    look("snooze");
    choice->dismissPopup();
}

void LanguageTour::visitTones()
{
    for (const auto place : {QStandardPaths::MusicLocation, QStandardPaths::DownloadLocation})
        QDir().mkpath(QStandardPaths::writableLocation(place));
    Touch::Window *window = Touch::Window::active();
    onTopOf<AlarmOptionsPage>(window)->toneClicked();
    auto *tones = onTopOf<AlertToneBrowserSheet>(window);
    expect(tones, "tones");
    look("tones");
    emit Support::itemIn<Touch::BasicListItem>(tones, "chooseFileItem")->clicked();
    visitFolders();
    expect(onTopOf<AlertToneBrowserSheet>(window), "tones again");
    window->stepBack();
}

void LanguageTour::visitFolders()
{
    Touch::Window *window = Touch::Window::active();
    auto *files = onTopOf<ToneFileSheet>(window);
    expect(files, "files");
    look("files");
    auto *music = Support::itemIn<ToneFileItem>(files);
    expect(music, "folder of music");
    emit music->clicked();
    expect(!files->folder().isEmpty(), "way into a folder");
    look("folder");
    window->stepBack();
    window->stepBack();
}

void LanguageTour::visitRingScreens()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        window->hide();
    for (const char *gesture : {"hold", "slide"})
        visitRingScreen(gesture);
    visitPlainRingScreen();
}

void LanguageTour::visitRingScreen(const QString &stopGesture)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QSettings(folder + "/ringer.conf", QSettings::IniFormat).setValue("Stop/gesture", stopGesture);
    QString reason;
    Ringer::RingPlugin *plugin = RingScreen::load(&reason);
    expect(plugin, reason);
    if (!plugin)
        return;
    RingScreen::RecordingAnswers answers;
    plugin->setAnswers(&answers);
    for (quint32 cookie = 1; cookie <= 3; ++cookie)
        plugin->show(RingScreen::teaTime(cookie, 1800));
    QGraphicsView *window = RingScreen::window();
    expect(QTest::qWaitForWindowExposed(window, Patience), "ring screen");
    window->resize(Narrow);
    expect(QTest::qWaitFor([window] { return window->scene()->sceneRect().size() == Narrow; }, Patience),
           "narrow ring screen");
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    look("ring-" + stopGesture, window);
    QSet<int> sizes;
    for (const char *name : {"snooze5", "snooze10", "snooze15", "snooze20"})
        sizes << RingScreen::item(name)->property("shownTextSize").toInt();
    expect(sizes.size() == 1 && !sizes.contains(0), "one size of text for all lengths of a snooze");
    for (quint32 cookie = 1; cookie <= 3; ++cookie)
        plugin->hide(cookie);
    expect(QTest::qWaitFor([] { return RingScreen::window() == nullptr; }, Patience), "end of the ring screen");
}

void LanguageTour::visitPlainRingScreen()
{
    RingScreen::RecordingAnswers answers;
    Ringer::PlainScreen screen;
    screen.setAnswers(&answers);
    screen.show({1, {}, QDateTime::currentDateTimeUtc(), {}, 1800});
    screen.setWindowState(Qt::WindowNoState);
    screen.resize(Narrow);
    expect(QTest::qWaitForWindowExposed(&screen, Patience) && screen.size() == Narrow, "plain ring screen");
    const auto note = [this](const auto *part) {
        if (part->isVisible() && !showsWholeText(part))
            m_findings << "ring-plain: " + part->text();
    };
    const auto labels = screen.findChildren<QLabel *>();
    const auto buttons = screen.findChildren<QPushButton *>();
    expect(labels.size() == 2 && buttons.size() == 2, "moment, title and answers of the plain ring screen");
    std::for_each(labels.begin(), labels.end(), note);
    std::for_each(buttons.begin(), buttons.end(), note);
    keepPicture("ring-plain", &screen);
}
