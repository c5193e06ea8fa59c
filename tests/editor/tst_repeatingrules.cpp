// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/repeatingrules.h"

#include "editor/repeatsummary.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using Touch::Button;

class TestRepeatingRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void asksForDaysAndIsDone();
    void listsNeverAndEveryDayAboveTheDays();
    void allDaysAreCheckedAtFirst();
    void neverCannotBeTurnedOff();
    void neverClearsTheDays();
    void everyDayCannotBeTurnedOff();
    void everyDayChecksTheDays();
    void theLastDayToGoChecksNever();
    void theSeventhDayChecksEveryDay();
    void showsARule_data();
    void showsARule();
    void aSecondRuleTakesTheFirstAway();
    void hasNoMarginsOfItsOwn();
    void aNumberThatIsNoDayIsLeftOut();
    void theDaysComeInTheOrderOfTheList();
    void tellsHowItWasLeft();
    void theSlotsKeepTheirOrder();

private:
    Button *button(const QString &name) const { return Support::itemIn<Button>(m_rules.get(), name); }
    Button *never() const { return button("neverButton"); }
    Button *everyDay() const { return button("everyDayButton"); }
    Button *day(int place) const { return button(QStringLiteral("weekday%1Button").arg(place)); }
    QList<int> checkedPlaces() const;

    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<Touch::ApplicationPage> m_page;
    std::unique_ptr<RepeatingRules> m_rules;
};

void TestRepeatingRules::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_GB.UTF-8");
    QVERIFY(Support::loadLook());
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_page = std::make_unique<Touch::ApplicationPage>();
    m_page->appear(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestRepeatingRules::init()
{
    m_rules = std::make_unique<RepeatingRules>();
    m_rules->appear(m_window.get());
}

void TestRepeatingRules::cleanup()
{
    m_rules.reset();
}

QList<int> TestRepeatingRules::checkedPlaces() const
{
    QList<int> places;
    for (int place = 0; place < 7; ++place) {
        if (day(place)->isChecked())
            places.append(place);
    }
    return places;
}

void TestRepeatingRules::asksForDaysAndIsDone()
{
    QCOMPARE(m_rules->title(), "qtn_cloc_set_repeat");
    QVERIFY(m_rules->standardButton(Touch::Dialog::Done));
    QCOMPARE(int(Touch::Dialog::Done), 0x10000000);
}

void TestRepeatingRules::listsNeverAndEveryDayAboveTheDays()
{
    QList<Button *> listed{never(), everyDay()};
    for (int place = 0; place < 7; ++place)
        listed.append(day(place));
    QCOMPARE(never()->text(), "qtn_cloc_repeatalarm_rulenever");
    QCOMPARE(everyDay()->text(), "qtn_cloc_repeatalarm_ruleeveryday");
    QCOMPARE(day(0)->text(), "Monday");
    QCOMPARE(day(6)->text(), "Sunday");
    QTRY_VERIFY(day(6)->scenePos().y() > day(5)->scenePos().y());
    for (int i = 0; i < listed.size(); ++i) {
        QCOMPARE(listed.at(i)->styleName(), "ClockAlarmRepeatDay");
        QVERIFY(listed.at(i)->isCheckable());
        QVERIFY2(i == 0 || listed.at(i)->scenePos().y() > listed.at(i - 1)->scenePos().y(),
                 qPrintable(listed.at(i)->text()));
    }
}

void TestRepeatingRules::allDaysAreCheckedAtFirst()
{
    QCOMPARE(checkedPlaces(), (QList<int>{0, 1, 2, 3, 4, 5, 6}));
    QVERIFY(!never()->isChecked());
    QVERIFY(!everyDay()->isChecked());
}

void TestRepeatingRules::neverCannotBeTurnedOff()
{
    m_rules->setRepeatDays(false, {});
    never()->click();
    QVERIFY(never()->isChecked());
    QVERIFY(!everyDay()->isChecked());
    QCOMPARE(checkedPlaces(), QList<int>());
}

void TestRepeatingRules::neverClearsTheDays()
{
    m_rules->setRepeatDays(true, {0, 1, 2, 3, 4, 5, 6});
    never()->click();
    QVERIFY(never()->isChecked());
    QVERIFY(!everyDay()->isChecked());
    QCOMPARE(m_rules->repeatDays(), QList<int>());
}

void TestRepeatingRules::everyDayCannotBeTurnedOff()
{
    m_rules->setRepeatDays(true, {0, 1, 2, 3, 4, 5, 6});
    everyDay()->click();
    QVERIFY(everyDay()->isChecked());
    QVERIFY(!never()->isChecked());
    QCOMPARE(checkedPlaces().size(), 7);
}

void TestRepeatingRules::everyDayChecksTheDays()
{
    m_rules->setRepeatDays(false, {});
    everyDay()->click();
    QVERIFY(everyDay()->isChecked());
    QVERIFY(!never()->isChecked());
    QCOMPARE(checkedPlaces().size(), 7);
}

void TestRepeatingRules::theLastDayToGoChecksNever()
{
    m_rules->setRepeatDays(true, {3});
    day(2)->click();
    QVERIFY(never()->isChecked());
    day(4)->click();
    QVERIFY(!never()->isChecked());
    QCOMPARE(m_rules->repeatDays(), QList<int>{5});
}

void TestRepeatingRules::theSeventhDayChecksEveryDay()
{
    m_rules->setRepeatDays(true, {1, 2, 3, 4, 5, 6});
    QVERIFY(!everyDay()->isChecked());
    day(6)->click();
    QVERIFY(everyDay()->isChecked());
    day(0)->click();
    QVERIFY(!everyDay()->isChecked());
}

void TestRepeatingRules::showsARule_data()
{
    QTest::addColumn<bool>("isRepeating");
    QTest::addColumn<QList<int>>("days");
    QTest::addColumn<QList<int>>("places");
    QTest::addColumn<bool>("isNever");
    QTest::addColumn<bool>("isEveryDay");
    QTest::newRow("never") << false << QList<int>{} << QList<int>{} << true << false;
    QTest::newRow("never, whatever the days") << false << QList<int>{1, 2} << QList<int>{} << true << false;
    QTest::newRow("Sunday is last") << true << QList<int>{0} << QList<int>{6} << false << false;
    QTest::newRow("some, in any order") << true << QList<int>{6, 1} << QList<int>{0, 5} << false << false;
    QTest::newRow("every day") << true << QList<int>{0, 1, 2, 3, 4, 5, 6} << QList<int>{0, 1, 2, 3, 4, 5, 6} << false
                               << true;
    QTest::newRow("repeating on no day") << true << QList<int>{} << QList<int>{} << false << false;
}

void TestRepeatingRules::showsARule()
{
    QFETCH(bool, isRepeating);
    QFETCH(QList<int>, days);
    m_rules->setRepeatDays(isRepeating, days);
    QTEST(checkedPlaces(), "places");
    QTEST(never()->isChecked(), "isNever");
    QTEST(m_rules->isNeverChecked(), "isNever");
    QTEST(everyDay()->isChecked(), "isEveryDay");
}

void TestRepeatingRules::aSecondRuleTakesTheFirstAway()
{
    m_rules->setRepeatDays(true, {0, 1, 2, 3, 4, 5, 6});
    m_rules->setRepeatDays(true, {2});
    QCOMPARE(m_rules->repeatDays(), QList<int>{2});
    QVERIFY(!everyDay()->isChecked());
    m_rules->setRepeatDays(false, {});
    m_rules->setRepeatDays(true, {2});
    QVERIFY(!never()->isChecked());
}

void TestRepeatingRules::hasNoMarginsOfItsOwn()
{
    const auto *column = dynamic_cast<const Touch::Layout *>(m_rules->centralWidget()->layout());
    QVERIFY(column);
    const auto *policy = dynamic_cast<const Touch::LinearLayoutPolicy *>(column->policy());
    QVERIFY(policy);
    QCOMPARE(policy->spacing(), 0.0);
    QCOMPARE(policy->contentsMargins(), QMarginsF());
    qreal left = 1, top = 1, right = 1, bottom = 1;
    column->getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(QMarginsF(left, top, right, bottom), QMarginsF());
}

void TestRepeatingRules::aNumberThatIsNoDayIsLeftOut()
{
    m_rules->setRepeatDays(true, {-30, 2});
    QCOMPARE(m_rules->repeatDays(), QList<int>{2});
}

void TestRepeatingRules::theDaysComeInTheOrderOfTheList()
{
    m_rules->setRepeatDays(true, {0, 3, 1});
    QCOMPARE(m_rules->repeatDays(), (QList<int>{1, 3, 0}));
}

void TestRepeatingRules::tellsHowItWasLeft()
{
    QSignalSpy accepted(m_rules.get(), &Touch::Dialog::accepted);
    QSignalSpy rejected(m_rules.get(), &Touch::Dialog::rejected);
    m_rules->standardButton(Touch::Dialog::Done)->click();
    QCOMPARE(accepted.size(), 1);
    QVERIFY(!m_rules->isOnDisplay());
    m_rules->appear(m_window.get());
    m_window->stepBack();
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!m_rules->isOnDisplay());
}

void TestRepeatingRules::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = RepeatingRules::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        slotNames.append(meta.method(i).methodSignature());
    QCOMPARE(slotNames,
             (QStringList{"neverButtonClicked(bool)", "everyDayButtonClicked(bool)", "weekDayButtonsClicked(bool)"}));
}

QTEST_MAIN(TestRepeatingRules)
#include "tst_repeatingrules.moc"
