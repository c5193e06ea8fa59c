// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "app/references.h"
#include "editor/repeatingrules.h"
#include "editor/repeatsummary.h"
#include "editor/weekdayorder.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/clockwidgets/tonefileitem_p.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/textedit.h"
#include "tests/flow/alarmscreen.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/places.h"

#include <QDir>
#include <QFile>
#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Flow::itemNamed;
using Flow::pointOf;

namespace {

void tap(const QString &name)
{
    QTRY_VERIFY(itemNamed(name) && !Flow::isMoving());
    Flow::tap(pointOf(itemNamed(name)));
}

void tapSaying(const QString &start)
{
    QTRY_VERIFY(Flow::itemSaying(start) && !Flow::isMoving());
    Flow::tap(pointOf(Flow::itemSaying(start)));
}

/** The row of a file or folder where one is looked for, or null. */
QGraphicsObject *fileRow(const QString &path)
{
    const auto items = Flow::frontWindow()->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *row = qobject_cast<ToneFileItem *>(item->toGraphicsObject());
        if (row && row->isVisible() && row->path() == path)
            return row;
    }
    return nullptr;
}

void tapFile(const QString &path)
{
    QTRY_VERIFY(fileRow(path) && !Flow::isMoving());
    Flow::tap(pointOf(fileRow(path)));
}

void tapDoneWithDays()
{
    const auto *rules = qobject_cast<RepeatingRules *>(itemNamed("repeatingRules"));
    QVERIFY(rules);
    Flow::tap(pointOf(rules->standardButton(Touch::Dialog::Done)));
}

bool keepScreenshot(const QString &name)
{
    return Flow::keepScreenshot(QStringLiteral("editor-" LOOK "-") + name);
}

QString subtitleOf(const QString &name)
{
    const auto *row = qobject_cast<Touch::BasicListItem *>(itemNamed(name));
    return row ? row->subtitle() : QString();
}

QList<quint32> cookies()
{
    bool failed = false;
    return QmAlarm().query(failed);
}

/** The alarm on the main page, or null. */
AlarmListItem *row()
{
    return Flow::rows().value(0);
}

/** The weekdays of two places in the list of days. */
QList<int> chosenDays()
{
    QList<int> days{0, 2};
    placesToWeekdays(days, firstDayOfWeek());
    return days;
}

} // namespace

class TestEditorFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Flow::prepareWindow()); }
    void anAlarmIsNamedAndItsTimeTapped();
    void itsOptionsOpenInTheirOwnWindow();
    void itsDaysAreChosen();
    void itsSnoozeIsChosen();
    void aFileOfOnesOwnIsChosen();
    void itsToneIsChosen();
    void itIsSavedWithAllThat();
    void itIsOpenedAgainAndCancelled();
    void itIsEdited();
    void itIsDeleted();

private:
    QTime m_time;
    QString m_snooze; ///< in the language that is tested
};

void TestEditorFlow::anAlarmIsNamedAndItsTimeTapped()
{
    tap("newAlarmButton");
    tap("AlarmNameInputField");
    Flow::type("Swimming");
    QTRY_VERIFY(itemNamed("timePicker"));
    const auto *picker = qobject_cast<TimePicker *>(itemNamed("timePicker"));
    const QPointF opposite = 2 * picker->rect().center() - picker->minuteHandle();
    Flow::tap(pointOf(picker, opposite.x() / picker->size().width(), opposite.y() / picker->size().height()));
    QTRY_COMPARE(picker->minutes(), 30);
    m_time = QTime(picker->hours(), picker->minutes());
    QCOMPARE(qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"))->text(), "Swimming");
    QVERIFY(keepScreenshot("1-new"));
}

void TestEditorFlow::itsOptionsOpenInTheirOwnWindow()
{
    tap("moreOptionsBasicListItem");
    QTRY_VERIFY(Flow::frontWindow() != applicationWindow);
    QTRY_VERIFY(itemNamed("repeatBasicListItem") && !Flow::isMoving());
    QTRY_COMPARE(subtitleOf("toneBasicListItem"), "Clock alert 1");
    QVERIFY(keepScreenshot("2-options"));
}

void TestEditorFlow::itsDaysAreChosen()
{
    tap("repeatBasicListItem");
    tap("weekday0Button");
    tap("weekday2Button");
    QTRY_VERIFY(qobject_cast<Touch::Button *>(itemNamed("weekday2Button"))->isChecked());
    QVERIFY(keepScreenshot("3-days"));
    tapDoneWithDays();
    QTRY_VERIFY(!itemNamed("weekday0Button"));
    QCOMPARE(subtitleOf("repeatBasicListItem"), repeatSummary(true, chosenDays()));
}

void TestEditorFlow::itsSnoozeIsChosen()
{
    tap("snoozeComboBox");
    m_snooze = qobject_cast<Touch::ComboBox *>(itemNamed("snoozeComboBox"))->itemText(3);
    tapSaying(m_snooze);
    QTRY_COMPARE(subtitleOf("snoozeComboBox"), m_snooze);
}

void TestEditorFlow::aFileOfOnesOwnIsChosen()
{
    const QString folder = QDir::home().filePath("Downloads");
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(Places::sharedData("sounds/ring-tones/Harbour.aac"), folder + "/Sea_shanty.aac"));
    QFile text(folder + "/No_music.mp3");
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no music in here") > 0);
    text.close();
    tap("toneBasicListItem");
    tap("chooseFileItem");
    tapFile(folder);
    QTRY_VERIFY(fileRow(folder + "/No_music.mp3"));
    QVERIFY(keepScreenshot("4-files"));
    tapFile(folder + "/No_music.mp3");
    QTRY_VERIFY_WITH_TIMEOUT(Flow::visibleTexts().join('\n').contains("No music"), 15000);
    QVERIFY(keepScreenshot("4-refused"));
    tapFile(folder + "/Sea_shanty.aac");
    QTRY_VERIFY_WITH_TIMEOUT(!itemNamed("toneFileList"), 15000);
    QTRY_VERIFY(Flow::itemSaying("Sea shanty"));
    QVERIFY(keepScreenshot("4-file"));
    tap("positiveButton");
    QTRY_COMPARE(subtitleOf("toneBasicListItem"), "Sea shanty");
}

void TestEditorFlow::itsToneIsChosen()
{
    tap("toneBasicListItem");
    QTRY_VERIFY(Flow::itemSaying("Village Bells"));
    QVERIFY(keepScreenshot("4-tones"));
    tapSaying("Village Bells");
    tap("positiveButton");
    QTRY_COMPARE(subtitleOf("toneBasicListItem"), "Village Bells");
    QVERIFY(keepScreenshot("5-chosen"));
}

void TestEditorFlow::itIsSavedWithAllThat()
{
    tap("positiveButton");
    QTRY_COMPARE(Flow::frontWindow(), applicationWindow);
    tap("positiveButton");
    QTRY_VERIFY(!itemNamed("timePicker"));
    QTRY_VERIFY(row());
    QCOMPARE(cookies().size(), 1);
    const QmAlarmEvent stored(cookies().constFirst());
    QCOMPARE(stored.title(), "Swimming");
    QCOMPARE(stored.alarmTime(), m_time);
    QCOMPARE(stored.repeatDays(), chosenDays());
    QCOMPARE(stored.snooze(), 20);
    QVERIFY(stored.tone().endsWith("/Village Bells.aac"));
    QVERIFY(keepScreenshot("6-saved"));
}

void TestEditorFlow::itIsOpenedAgainAndCancelled()
{
    const quint32 before = cookies().constFirst();
    Flow::tap(pointOf(row(), 0.5));
    tap("moreOptionsBasicListItem");
    QTRY_COMPARE(subtitleOf("snoozeComboBox"), m_snooze);
    QTRY_COMPARE(subtitleOf("toneBasicListItem"), "Village Bells");
    tap("negativeButton");
    QTRY_COMPARE(Flow::frontWindow(), applicationWindow);
    QVERIFY(keepScreenshot("7-existing"));
    tap("negativeButton");
    QTRY_VERIFY(!itemNamed("timePicker"));
    QCOMPARE(cookies(), QList<quint32>{before});
}

void TestEditorFlow::itIsEdited()
{
    Flow::tap(pointOf(row(), 0.5));
    tap("moreOptionsBasicListItem");
    tap("repeatBasicListItem");
    tap("everyDayButton");
    tapDoneWithDays();
    QTRY_VERIFY(!itemNamed("everyDayButton"));
    tap("positiveButton");
    QTRY_COMPARE(Flow::frontWindow(), applicationWindow);
    tap("positiveButton");
    QTRY_VERIFY(!itemNamed("timePicker"));
    QCOMPARE(cookies().size(), 1);
    QCOMPARE(QmAlarmEvent(cookies().constFirst()).repeatDays().size(), 7);
    QCOMPARE(QmAlarmEvent(cookies().constFirst()).title(), "Swimming");
}

void TestEditorFlow::itIsDeleted()
{
    QTRY_VERIFY(row() && !Flow::isMoving());
    Flow::tap(pointOf(row(), 0.5));
    tap("deleteButton");
    QTRY_VERIFY(!itemNamed("timePicker"));
    QTRY_VERIFY(!row());
    QCOMPARE(cookies(), QList<quint32>());
}

int main(int argc, char **argv)
{
    qputenv("CLOCK_THEME", THEME);
    qputenv("LC_ALL", LANGUAGE);
    return Flow::runInProgram(argc, argv, [] { return std::make_unique<TestEditorFlow>(); });
}
#include "tst_editorflow.moc"
