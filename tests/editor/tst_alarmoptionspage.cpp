// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/settings.h"
#include "platform/toolkit/basicsheetheader.h"
#include "tests/editor/optionstest.h"

#include <QAction>
#include <QMetaMethod>
#include <QTranslator>

using Settings::SnoozeChoices;

namespace {

/** How a catalogue says the snooze times. */
class Minutes : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *id, const char *, int) const override
    {
        return qstrcmp(id, "qtn_cloc_alarmeditor_snooze") == 0 ? QStringLiteral("%1 min") : QString();
    }
};

} // namespace

class TestAlarmOptionsPage : public OptionsTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openOptions(); }
    void cleanup() { closeOptions(); }
    void hasAnInvertedWindowChainedToTheCaller();
    void hasNoMarginsOfItsOwn();
    void cancelsAndSavesByItsHeader();
    void listsRepeatSnoozeAndTone();
    void offersFiveSnoozeTimes();
    void searchesByHalves_data();
    void searchesByHalves();
    void aNewAlarmStartsWithTheDefaults();
    void aNewAlarmTakesThePreferences();
    void aNewAlarmTakesPreferencesThatChangedMeanwhile();
    void aNewAlarmsSnoozeIsCutToEightBits();
    void aNewAlarmsSnoozeThatCannotBeChosenKeepsTheChoice();
    void anExistingAlarmBringsItsOwnValues();
    void aSnoozeThatCannotBeChosenKeepsTheChoice();
    void aMissingToneIsReplacedByTheDefault();
    void theSlotsKeepTheirOrder();
};

void TestAlarmOptionsPage::hasAnInvertedWindowChainedToTheCaller()
{
    m_mainPage->setTitle("Clock");
    m_options = std::make_unique<AlarmOptionsPage>();
    openNewAlarm();
    const auto *window = qobject_cast<Touch::ApplicationWindow *>(m_options->hostWindow());
    QVERIFY(window);
    QVERIFY(window != m_window.get());
    QCOMPARE(window->chainedTo(), m_window.get());
    QCOMPARE(window->chainedTitle(), "Clock");
    QCOMPARE(window->styleName(), "CommonApplicationWindowInverted");
    QCOMPARE(window->orientation(), Qt::Vertical);
    QVERIFY(window->isOrientationLocked());
    QVERIFY(window->isVisible());
    m_options->cancel();
    QTRY_VERIFY(!window->isVisible());
}

void TestAlarmOptionsPage::hasNoMarginsOfItsOwn()
{
    openNewAlarm();
    const auto *header = Support::itemIn<Touch::Label>(m_options.get(), "AlarmOptionsHeader");
    const Touch::Widget *content = m_options->centralWidget();
    const auto *repeat = item("repeatBasicListItem");
    QTRY_COMPARE(repeat->sceneBoundingRect().left(), content->sceneBoundingRect().left());
    QTRY_COMPARE(repeat->sceneBoundingRect().right(), content->sceneBoundingRect().right());
    QCOMPARE(header->sceneBoundingRect().top(), content->sceneBoundingRect().top());
    QCOMPARE(repeat->sceneBoundingRect().top(), header->sceneBoundingRect().bottom());
    QCOMPARE(snooze()->sceneBoundingRect().top(), repeat->sceneBoundingRect().bottom());
    QCOMPARE(item("toneBasicListItem")->sceneBoundingRect().top(), snooze()->sceneBoundingRect().bottom());
}

void TestAlarmOptionsPage::cancelsAndSavesByItsHeader()
{
    openNewAlarm();
    const auto *header = qobject_cast<Touch::BasicSheetHeader *>(m_options->headerWidget());
    QVERIFY(header);
    QCOMPARE(header->negativeAction()->text(), "qtn_comm_cancel");
    QCOMPARE(header->positiveAction()->text(), "qtn_comm_save");
    snooze()->setCurrentIndex(4);
    header->positiveAction()->trigger();
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(settings().value("Clock/SnoozeTime").toInt(), 30);
    m_options->appear();
    snooze()->setCurrentIndex(0);
    header->negativeAction()->trigger();
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(snooze()->currentIndex(), 4);
}

void TestAlarmOptionsPage::listsRepeatSnoozeAndTone()
{
    openNewAlarm();
    QCOMPARE(m_options->styleName(), "MoreOptionsSheet");
    const auto *header = Support::itemIn<Touch::Label>(m_options.get(), "AlarmOptionsHeader");
    QVERIFY(header);
    QCOMPARE(header->styleName(), "CommonApplicationHeader");
    QCOMPARE(header->text(), "qtn_cloc_alarm_options");
    QCOMPARE(item("repeatBasicListItem")->title(), "qtn_cloc_alarmeditor_repeattitle");
    QCOMPARE(snooze()->title(), "qtn_cloc_alarmeditor_snoozesetting");
    QCOMPARE(snooze()->objectName(), "snoozeComboBox");
    QCOMPARE(item("toneBasicListItem")->title(), "qtn_cloc_alarmeditor_tone");
    const QList<Touch::Widget *> rows{item("repeatBasicListItem"), snooze(), item("toneBasicListItem")};
    const auto top = [](const Touch::Widget *widget) { return widget->scenePos().y(); };
    QTRY_VERIFY(top(rows[0]) > top(header) && top(rows[1]) > top(rows[0]) && top(rows[2]) > top(rows[1]));
    for (const Touch::Widget *row : rows)
        QCOMPARE(row->styleName(), "CommonPanel");
    QCOMPARE(item("repeatBasicListItem")->itemStyle(), AlarmEditorListItem::ItemStyle(3));
    QCOMPARE(item("toneBasicListItem")->itemStyle(), AlarmEditorListItem::ItemStyle(3));
}

void TestAlarmOptionsPage::offersFiveSnoozeTimes()
{
    Minutes minutes;
    QVERIFY(QCoreApplication::installTranslator(&minutes));
    m_options = std::make_unique<AlarmOptionsPage>();
    QStringList texts;
    for (int i = 0; i < snooze()->count(); ++i)
        texts.append(snooze()->itemText(i));
    QCOMPARE(texts, (QStringList{"5 min", "10 min", "15 min", "20 min", "30 min"}));
    QCOMPARE(QList<int>(SnoozeChoices.begin(), SnoozeChoices.end()), (QList<int>{5, 10, 15, 20, 30}));
}

void TestAlarmOptionsPage::searchesByHalves_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 5 << 0 << 4 << 0;
    QTest::newRow("second") << 10 << 0 << 4 << 1;
    QTest::newRow("middle") << 15 << 0 << 4 << 2;
    QTest::newRow("fourth") << 20 << 0 << 4 << 3;
    QTest::newRow("last") << 30 << 0 << 4 << 4;
    QTest::newRow("between two") << 25 << 0 << 4 << -1;
    QTest::newRow("below all") << 0 << 0 << 4 << -1;
    QTest::newRow("above all") << 60 << 0 << 4 << -1;
    QTest::newRow("outside the part") << 5 << 1 << 4 << -1;
    QTest::newRow("a part of one") << 15 << 2 << 2 << 2;
    QTest::newRow("no part") << 15 << 3 << 2 << -1;
}

void TestAlarmOptionsPage::searchesByHalves()
{
    QFETCH(int, minutes);
    QFETCH(int, low);
    QFETCH(int, high);
    QTEST(m_options->binarySearch(SnoozeChoices.data(), minutes, low, high), "index");
}

void TestAlarmOptionsPage::aNewAlarmStartsWithTheDefaults()
{
    openNewAlarm();
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(snooze()->currentIndex(), 1);
    QCOMPARE(m_options->snoozeIndex(), 1);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
}

void TestAlarmOptionsPage::aNewAlarmTakesThePreferences()
{
    settings().setValue("Clock/SnoozeTime", 20);
    settings().setValue("Clock/DefaultTone", m_tone);
    m_options->load(QmAlarmEvent::NotStored, "/not/asked.aac", 5);
    QCOMPARE(m_options->snoozeIndex(), 3);
    QCOMPARE(m_options->tone(), m_tone);
}

void TestAlarmOptionsPage::aNewAlarmTakesPreferencesThatChangedMeanwhile()
{
    openNewAlarm();
    QCOMPARE(m_options->snoozeIndex(), 1);
    writePreferences("[Clock]\nSnoozeTime=20\nDefaultTone=" + m_tone.toUtf8() + '\n');
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(m_options->snoozeIndex(), 3);
    QCOMPARE(m_options->tone(), m_tone);
}

void TestAlarmOptionsPage::aNewAlarmsSnoozeIsCutToEightBits()
{
    settings().setValue("Clock/SnoozeTime", 261);
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(snooze()->currentIndex(), 0);
}

void TestAlarmOptionsPage::aNewAlarmsSnoozeThatCannotBeChosenKeepsTheChoice()
{
    settings().setValue("Clock/SnoozeTime", 7);
    snooze()->setCurrentIndex(2);
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(snooze()->currentIndex(), 2);
    m_options->cancel();
    // The one that counts before any was saved is ten minutes.
    QCOMPARE(snooze()->currentIndex(), 1);
}

void TestAlarmOptionsPage::anExistingAlarmBringsItsOwnValues()
{
    settings().setValue("Clock/SnoozeTime", 20);
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    m_options->load(cookie, m_tone, 30);
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
    QCOMPARE(m_options->snoozeIndex(), 4);
    QCOMPARE(m_options->tone(), m_tone);
    m_options->load(Support::addAlarm(QTime(8, 0)), m_tone, 5);
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
}

void TestAlarmOptionsPage::aSnoozeThatCannotBeChosenKeepsTheChoice()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    m_options->load(cookie, m_tone, 20);
    m_options->load(cookie, m_tone, 7);
    QCOMPARE(snooze()->currentIndex(), 3);
    snooze()->setCurrentIndex(0);
    m_options->cancel();
    QCOMPARE(snooze()->currentIndex(), 3);
}

void TestAlarmOptionsPage::aMissingToneIsReplacedByTheDefault()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), "/nowhere/gone.aac", 10);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
    settings().setValue("Clock/DefaultTone", "/nowhere/gone.aac");
    m_options->load(QmAlarmEvent::NotStored, m_tone, 10);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
}

void TestAlarmOptionsPage::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = AlarmOptionsPage::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(names,
             (QStringList{"repeatingRulesButtonClicked()", "handleRepeatingRulesDialogAccepted()",
                          "handleRepeatingRulesDialogRejected()", "save()", "cancel()", "toneClicked()",
                          "toneSelected()", "queryResultAvailable()", "binarySearch(const int[],int,int,int)"}));
}

QTEST_MAIN(TestAlarmOptionsPage)
#include "tst_alarmoptionspage.moc"
