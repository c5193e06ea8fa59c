// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarmlist/emptylisthint.h"
#include "alarms/qmalarm.h"
#include "platform/toolkit/imagewidget.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/alarmlist/announcements.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"

#include <algorithm>
#include <QGraphicsScene>
#include <QSignalSpy>
#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Support::addAlarm;
using Support::addSwitchedOffAlarm;

namespace {

/** Which cells of the model were written, as "row.column". */
QStringList cellsOf(const QSignalSpy &written)
{
    QStringList cells;
    for (const QVariantList &change : written) {
        const QModelIndex cell = change.first().toModelIndex();
        cells.append(QString("%1.%2").arg(cell.row()).arg(cell.column()));
    }
    return cells;
}

} // namespace

class TestAlarmsWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void init() { QVERIFY(m_section.open()); }
    void cleanup() { QVERIFY(m_section.close()); }
    void theFirstNotificationFillsTheList();
    void aRowHoldsTheTextsOfItsAlarm();
    void alarmsFoundAtStartAreInsertedOneByOne();
    void anAddedAlarmMovesOneRow();
    void anAddedAlarmRewritesNoOtherRow();
    void oneOfSeveralNewAlarmsIsAddedAtATime();
    void aChangedAlarmReloadsAllRowsPlainly();
    void aDeletedAlarmMovesOneRow();
    void deletingTheLastRowRemovesIt();
    void panningNeedsAnAlarm();
    void theHintShowsWhileThereIsNoAlarm();
    void theHintIsReadInALowWindow();
    void aReloadWritesEveryColumnOfEveryRowOnce();
    void changesOfTheModelAreLoggedWithinTheUpdate_data();
    void changesOfTheModelAreLoggedWithinTheUpdate();
    void resettingReadsTheAlarmsOnlyWhileVisible();
    void everyNotificationIsLogged();
    void itsEndIsLogged();

private:
    AlarmSection m_section;
};

void TestAlarmsWidget::theFirstNotificationFillsTheList()
{
    // Nothing triggers, yet the first value of the empty map fills the list.
    addSwitchedOffAlarm(QTime(6, 0));
    const Support::LogCapture log;
    m_section.openAtOnce();
    QVERIFY2(log.lines().filter("subscribeToContextFramework").isEmpty(), "the first section follows the triggers");
    QVERIFY2(m_section.model()->rowCount() == 1, "a section made later knows the triggers and waits for nothing");
    QCOMPARE(m_section.column(3), QStringList{"0"});
}

void TestAlarmsWidget::aRowHoldsTheTextsOfItsAlarm()
{
    const quint32 cookie = addAlarm(QTime(7, 5), "Tea", {1, 2});
    QTRY_COMPARE(m_section.model()->rowCount(), 1);
    QStringList texts;
    for (int number = 0; number < 7; ++number)
        texts += m_section.column(number);
    QCOMPARE(texts, (QStringList{QString::number(cookie), "07:05", "Tea", "1", "/nowhere/tone.aac", "Mon, Tue", "10"}));
}

void TestAlarmsWidget::alarmsFoundAtStartAreInsertedOneByOne()
{
    addSwitchedOffAlarm(QTime(7, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    addSwitchedOffAlarm(QTime(8, 0));
    Announcements announcements(m_section.model());
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, (QStringList{"+ 0 0 animated", "+ 1 1 animated", "+ 2 2 animated"}));
    QCOMPARE(m_section.column(1), (QStringList{"06:00", "07:00", "08:00"}));
}

void TestAlarmsWidget::anAddedAlarmMovesOneRow()
{
    for (const int hour : {5, 7, 9})
        addSwitchedOffAlarm(QTime(hour, 0));
    m_section.widget()->updateContent();
    Announcements announcements(m_section.model());
    addSwitchedOffAlarm(QTime(6, 0));
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, QStringList{"+ 1 1 animated"});
    QCOMPARE(m_section.column(1), (QStringList{"05:00", "06:00", "07:00", "09:00"}));

    announcements.words.clear();
    addSwitchedOffAlarm(QTime(10, 0));
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, QStringList{"+ 4 4 animated"});
}

void TestAlarmsWidget::anAddedAlarmRewritesNoOtherRow()
{
    for (const int hour : {5, 7, 9})
        addSwitchedOffAlarm(QTime(hour, 0));
    m_section.widget()->updateContent();
    addSwitchedOffAlarm(QTime(6, 0));
    const QSignalSpy written(m_section.model(), &QAbstractItemModel::dataChanged);
    m_section.widget()->updateContent();
    QCOMPARE(cellsOf(written), (QStringList{"1.0", "1.1", "1.2", "1.3", "1.4", "1.5", "1.6"}));
}

void TestAlarmsWidget::aReloadWritesEveryColumnOfEveryRowOnce()
{
    addSwitchedOffAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(7, 0));
    m_section.widget()->updateContent();
    const QSignalSpy written(m_section.model(), &QAbstractItemModel::dataChanged);
    m_section.widget()->updateContent();
    QCOMPARE(cellsOf(written),
             (QStringList{"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "1.0", "1.1", "1.2", "1.3", "1.4", "1.5",
                          "1.6"}));
}

void TestAlarmsWidget::changesOfTheModelAreLoggedWithinTheUpdate_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QStringList>("changes");
    const QStringList reload{"virtual bool AlarmsListModel::removeRows(int, int, const QModelIndex&)",
                             "virtual bool AlarmsListModel::insertRows(int, int, const QModelIndex&)"};
    const QString insert("bool AlarmsListModel::insertRow(int, const QModelIndex&)");
    const QString remove("bool AlarmsListModel::removeRow(int, const QModelIndex&)");
    QTest::newRow("none, as before") << 0 << 0 << reload;
    QTest::newRow("as many as before") << 2 << 2 << reload;
    QTest::newRow("the first ones") << 0 << 2 << QStringList{insert, insert};
    QTest::newRow("more") << 1 << 3 << QStringList{insert};
    QTest::newRow("fewer") << 3 << 1 << QStringList{remove};
}

void TestAlarmsWidget::changesOfTheModelAreLoggedWithinTheUpdate()
{
    QFETCH(int, shown);
    QFETCH(int, stored);
    QFETCH(QStringList, changes);
    for (int i = 0; i < shown; ++i)
        addSwitchedOffAlarm(QTime(5 + i, 0));
    m_section.widget()->updateContent();
    bool failed = false;
    for (int i = shown; i > stored; --i)
        QVERIFY(QmAlarm().deleteEvent(QmAlarm().query(failed).first()));
    for (int i = shown; i < stored; ++i)
        addSwitchedOffAlarm(QTime(5 + i, 0));
    QStringList expected{"void AlarmsWidget::updateContent() entered"};
    for (const QString &change : std::as_const(changes))
        expected += {change + " entered", change + " exited"};
    expected += "void AlarmsWidget::updateContent() exited";
    const Support::LogCapture log;
    m_section.widget()->updateContent();
    QStringList lines = log.lines(QtDebugMsg);
    lines.removeIf([](const QString &line) { return !line.contains("Alarms"); });
    lines.removeIf([](const QString &line) { return line.contains("Clock::QmAlarm"); });
    QCOMPARE(lines, expected);
}

void TestAlarmsWidget::oneOfSeveralNewAlarmsIsAddedAtATime()
{
    addSwitchedOffAlarm(QTime(6, 0));
    m_section.widget()->updateContent();
    addSwitchedOffAlarm(QTime(7, 0));
    addSwitchedOffAlarm(QTime(8, 0));
    Announcements announcements(m_section.model());
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, QStringList{"+ 1 1 animated"});
    QCOMPARE(m_section.column(1), (QStringList{"06:00", "07:00"}));
    m_section.widget()->updateContent();
    QCOMPARE(m_section.column(1), (QStringList{"06:00", "07:00", "08:00"}));
}

void TestAlarmsWidget::aChangedAlarmReloadsAllRowsPlainly()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(7, 0));
    m_section.widget()->updateContent();
    Announcements announcements(m_section.model());
    QmAlarmEvent changed = Support::alarmAt(QTime(9, 0));
    changed.setEnabled(false);
    QVERIFY(QmAlarm().replace(changed, cookie) != QmAlarmEvent::NotStored);
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, (QStringList{"- 0 1 plain", "+ 0 1 plain"}));
    QCOMPARE(m_section.column(1), (QStringList{"07:00", "09:00"}));
}

void TestAlarmsWidget::aDeletedAlarmMovesOneRow()
{
    addSwitchedOffAlarm(QTime(5, 0));
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    addSwitchedOffAlarm(QTime(7, 0));
    m_section.widget()->updateContent();
    Announcements announcements(m_section.model());
    QVERIFY(QmAlarm().deleteEvent(cookie));
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    QCOMPARE(m_section.column(1), (QStringList{"05:00", "07:00"}));
}

void TestAlarmsWidget::deletingTheLastRowRemovesIt()
{
    addSwitchedOffAlarm(QTime(5, 0));
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    m_section.widget()->updateContent();
    Announcements announcements(m_section.model());
    QVERIFY(QmAlarm().deleteEvent(cookie));
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    QCOMPARE(m_section.column(1), QStringList{"05:00"});
}

void TestAlarmsWidget::panningNeedsAnAlarm()
{
    m_section.widget()->updateContent();
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations());
    addAlarm(QTime(5, 0));
    QTRY_COMPARE(m_section.viewport()->panDirection(), Qt::Orientations(Qt::Vertical));
    QVERIFY(Support::removeAllAlarms());
    QTRY_COMPARE(m_section.viewport()->panDirection(), Qt::Orientations());
}

void TestAlarmsWidget::theHintShowsWhileThereIsNoAlarm()
{
    m_section.widget()->updateContent();
    QVERIFY(m_section.isHintShown());
    addAlarm(QTime(5, 0));
    QTRY_VERIFY(!m_section.isHintShown());
}

void TestAlarmsWidget::theHintIsReadInALowWindow()
{
    m_section.widget()->updateContent();
    auto *hint = Support::itemIn<EmptyListHint>(m_section.widget());
    const auto *image = Support::itemIn<Touch::ImageWidget>(hint);
    QTRY_VERIFY(hint->isVisible() && image->isVisible());
    const QSize usual = m_section.window()->size();
    m_section.window()->resize(640, 220);
    QTRY_VERIFY(!image->isVisible());
    const auto isSeen = [hint] {
        const QRectF window = hint->scene()->sceneRect();
        const auto children = hint->childItems();
        return std::all_of(children.begin(), children.end(), [window](const QGraphicsItem *child) {
            return !child->isVisible() || window.contains(child->sceneBoundingRect());
        });
    };
    QTRY_VERIFY2(isSeen(), "the words are below the window");
    for (const int height : {260, 300, 340, 400, 500}) {
        m_section.window()->resize(640, height);
        QTRY_COMPARE(hint->scene()->sceneRect().height(), height);
        QTRY_VERIFY2(isSeen(), qPrintable(QString::number(height)));
    }
    m_section.window()->resize(usual);
    QTRY_VERIFY(image->isVisible());
}

void TestAlarmsWidget::resettingReadsTheAlarmsOnlyWhileVisible()
{
    constexpr auto reset = "void AlarmsWidget::resetContent()";
    m_section.widget()->hide();
    {
        const Support::LogCapture log;
        m_section.widget()->resetContent();
        QCOMPARE(log.lines(QtDebugMsg), QStringList{reset});
    }
    m_section.widget()->show();
    const Support::LogCapture log;
    m_section.widget()->resetContent();
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.value(0), reset);
    QCOMPARE(lines.value(1), "void AlarmsWidget::updateContent() entered");
    QCOMPARE(lines.last(), "void AlarmsWidget::updateContent() exited");
}

void TestAlarmsWidget::everyNotificationIsLogged()
{
    const Support::LogCapture log;
    m_section.widget()->onValueChanged();
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.value(0), "void AlarmsWidget::onValueChanged() called");
    QCOMPARE(lines.value(1), "void AlarmsWidget::updateContent() entered");
}

void TestAlarmsWidget::itsEndIsLogged()
{
    Touch::PannableViewport viewport;
    auto widget = std::make_unique<AlarmsWidget>(nullptr, &viewport);
    const Support::LogCapture log;
    widget.reset();
    QCOMPARE(
        log.lines(QtDebugMsg),
        (QStringList{"virtual AlarmsWidget::~AlarmsWidget() entered", "virtual AlarmsWidget::~AlarmsWidget() exited"}));
}

QTEST_MAIN(TestAlarmsWidget)
#include "tst_alarmswidget.moc"
