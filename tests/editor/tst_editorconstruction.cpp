// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/separator.h"
#include "tests/editor/editortest.h"

#include <QAction>
#include <QMetaMethod>

/** The editor as it is built, before and after an alarm is loaded. */
class TestEditorConstruction : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openPage(); }
    void cleanup() { closePage(); }
    void startsWithoutAnAlarm();
    void hasNoMarginsOfItsOwn();
    void theFlagIsNotUsed_data();
    void theFlagIsNotUsed();
    void cancelsAndSavesByItsHeader();
    void thePickerTakesTheWidth();
    void aNarrowPickerIsNoHigherThanWide();
    void theTitleStandsAloneInItsRow();
    void theTimeTakesNoMoreThanItNeeds();
    void deletesByAButtonInAPanel();
    void theDividerStandsAboveTheDeletion();
    void theSpacerStandsOnTop();
    void thePickersSignalsKeepTheirForm();

private:
    Touch::Widget *named(const QString &name) const { return Support::itemIn<Touch::Widget>(m_page.get(), name); }
    /** The row of the content that an item stands in. */
    static Touch::Widget *rowOf(const Touch::Widget *item)
    {
        return dynamic_cast<Touch::Widget *>(item->parentItem()->toGraphicsObject());
    }
    Touch::Separator *line(const QString &styleName) const;
    static qreal top(const Touch::Widget *widget) { return widget->sceneBoundingRect().top(); }
    static qreal bottom(const Touch::Widget *widget) { return widget->sceneBoundingRect().bottom(); }
};

Touch::Separator *TestEditorConstruction::line(const QString &styleName) const
{
    const auto items = m_page->centralWidget()->childItems();
    for (QGraphicsItem *item : items) {
        auto *found = qobject_cast<Touch::Separator *>(item->toGraphicsObject());
        if (found && found->styleName() == styleName)
            return found;
    }
    return nullptr;
}

void TestEditorConstruction::startsWithoutAnAlarm()
{
    QCOMPARE(m_page->getAlarmCookie(), 4294967295u);
    QCOMPARE(pickedTime(), QTime(7, 0));
    QCOMPARE(m_title->text(), QString());
    QCOMPARE(m_title->cursorPosition(), 0);
    QVERIFY2(named("deleteButton")->isVisible(), "it is arranged for an existing alarm until it knows");
    // Nothing of an earlier alarm is restored.
    m_page->setAgainAlarm();
    QCOMPARE(storedCookies(), QList<quint32>());
}

void TestEditorConstruction::hasNoMarginsOfItsOwn()
{
    for (const QGraphicsLayoutItem *item :
         {static_cast<const QGraphicsLayoutItem *>(m_page.get()),
          static_cast<const QGraphicsLayoutItem *>(m_page->centralWidget()->layout())}) {
        qreal left = 1, top = 1, right = 1, bottom = 1;
        item->getContentsMargins(&left, &top, &right, &bottom);
        QCOMPARE(QMarginsF(left, top, right, bottom), QMarginsF());
    }
}

void TestEditorConstruction::theFlagIsNotUsed_data()
{
    QTest::addColumn<bool>("flag");
    QTest::newRow("set") << true;
    QTest::newRow("not set") << false;
}

void TestEditorConstruction::theFlagIsNotUsed()
{
    QFETCH(bool, flag);
    m_page->loadAlarm(QmAlarmEvent::NotStored, QTime(7, 5), "Tea", m_tone, flag, 10);
    m_page->saveAlarm();
    QVERIFY(QmAlarmEvent(m_page->getAlarmCookie()).isEnabled());
}

void TestEditorConstruction::cancelsAndSavesByItsHeader()
{
    load(QmAlarmEvent::NotStored);
    const auto *header = qobject_cast<Touch::BasicSheetHeader *>(m_page->headerWidget());
    QVERIFY(header);
    QCOMPARE(header->negativeAction()->text(), "qtn_comm_cancel");
    QCOMPARE(header->positiveAction()->text(), "qtn_comm_save");
    header->negativeAction()->trigger();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies(), QList<quint32>());
    m_page->appear(m_window.get());
    header->positiveAction()->trigger();
    QCOMPARE(storedCookies().size(), 1);
    QTRY_VERIFY(!m_page->isOnDisplay());
}

void TestEditorConstruction::thePickerTakesTheWidth()
{
    QCOMPARE(m_picker->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(m_picker->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void TestEditorConstruction::aNarrowPickerIsNoHigherThanWide()
{
    load(QmAlarmEvent::NotStored);
    m_window->resize(360, 640);
    QTRY_COMPARE(m_picker->size(), QSizeF(360, 360));
    m_window->resize(480, 854);
    QTRY_COMPARE(m_picker->size(), QSizeF(480, 400));
}

void TestEditorConstruction::theTitleStandsAloneInItsRow()
{
    load(QmAlarmEvent::NotStored);
    const Touch::Widget *row = rowOf(m_title);
    QVERIFY(row && row != m_page->centralWidget());
    QCOMPARE(row->layout()->count(), 1);
    QTRY_COMPARE(qRound(m_title->sceneBoundingRect().center().y()), qRound(row->sceneBoundingRect().center().y()));
}

void TestEditorConstruction::theTimeTakesNoMoreThanItNeeds()
{
    load(QmAlarmEvent::NotStored);
    const Touch::Widget *row = rowOf(label("ClockhhLabel"));
    QCOMPARE(row->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(row->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(row->layout()->count(), 4);
    const auto middle = [](const Touch::Widget *widget) { return widget->sceneBoundingRect().center().x(); };
    QTRY_VERIFY(qAbs(middle(row) - middle(m_page.get())) < 1);
}

void TestEditorConstruction::deletesByAButtonInAPanel()
{
    const auto *button = qobject_cast<Touch::Button *>(named("deleteButton"));
    QVERIFY(button);
    QCOMPARE(button->styleName(), "CommonSingleButton");
    QCOMPARE(button->text(), "qtn_comm_delete");
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    const Touch::Widget *panel = rowOf(button);
    QCOMPARE(panel->styleName(), "CommonPanelNoFeedback");
    QCOMPARE(panel->layout()->count(), 1);
    const auto middle = [](const Touch::Widget *widget) { return widget->sceneBoundingRect().center().x(); };
    load(Support::addAlarm(QTime(7, 5)));
    QTRY_VERIFY(qAbs(middle(button) - middle(m_page.get())) < 1);
}

void TestEditorConstruction::theDividerStandsAboveTheDeletion()
{
    load(Support::addAlarm(QTime(7, 5)));
    const auto *divider = line("CommonItemDivider");
    QTRY_VERIFY(bottom(divider) <= top(rowOf(named("deleteButton"))));
    QVERIFY(top(divider) >= bottom(named("moreOptionsBasicListItem")));
    QVERIFY(divider->isVisible());
    QVERIFY2(!line("AlarmEditorItemDivider")->isVisible(), "it stands in neither arrangement");
    load(QmAlarmEvent::NotStored);
    QTRY_VERIFY(!divider->isVisible());
}

void TestEditorConstruction::theSpacerStandsOnTop()
{
    for (const bool isNew : {true, false}) {
        load(isNew ? QmAlarmEvent::NotStored : Support::addAlarm(QTime(7, 5)));
        const auto *spacer = line("CommonSpacer");
        QTRY_COMPARE(top(spacer), top(m_page->centralWidget()));
        QTRY_VERIFY(bottom(spacer) <= top(rowOf(m_title)));
        QVERIFY(spacer->isVisible());
    }
}

void TestEditorConstruction::thePickersSignalsKeepTheirForm()
{
    const QMetaObject *meta = m_picker->metaObject();
    for (const char *form : {"timeChanged(int,int)", "discPressed(bool,bool)", "discReleased()"})
        QVERIFY2(meta->indexOfSignal(form) >= 0, form);
}

QTEST_MAIN(TestEditorConstruction)
#include "tst_editorconstruction.moc"
