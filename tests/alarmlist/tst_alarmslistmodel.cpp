// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmslistmodel.h"
#include "tests/alarmlist/announcements.h"
#include "tests/support/logcapture.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QStringList firstColumn(const AlarmsListModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts;
}

} // namespace

class TestAlarmsListModel : public QObject
{
    Q_OBJECT

private slots:
    void aNewModelHasSevenColumnsAndNoRows();
    void headersAreTheColumnNames_data();
    void headersAreTheColumnNames();
    void onlyTheDisplayRoleIsAnswered();
    void dataOutsideTheTableIsInvalid();
    void setDataWritesTextWhateverTheRole();
    void setDataOfAnInvalidIndexChangesNothing();
    void groupsAreNotUsed();
    void aSingleRowIsInsertedWithAnimation();
    void aSingleRowIsRemovedWithAnimation();
    void manyRowsAreInsertedWithoutAnimation();
    void everyCellOfNewRowsIsEmptyAndTellsOfItsFillingOnce();
    void insertingRunsUpToTheCountItself();
    void removingRunsUpToTheCountItself();
    void theWholeTableIsEmptiedWithoutAnimation();
    void nothingToDoIsNotAnnounced();
    void rowOperationsLogTheirSignatures_data();
    void rowOperationsLogTheirSignatures();

private:
    static void fill(AlarmsListModel &model, const QStringList &cookies)
    {
        model.insertRows(0, static_cast<int>(cookies.size()));
        for (int row = 0; row < cookies.size(); ++row)
            model.setData(model.index(row, 0), cookies.at(row));
    }
};

void TestAlarmsListModel::aNewModelHasSevenColumnsAndNoRows()
{
    AlarmsListModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 7);
    QCOMPARE(model.columnNames().indexOf("AlarmStatus"), 3);
}

void TestAlarmsListModel::headersAreTheColumnNames_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("header");
    const QStringList names{"AlarmCookie", "AlarmTime",          "AlarmMessage",    "AlarmStatus",
                            "AlarmTone",   "AlarmRepeatingRule", "AlarmSnoozeValue"};
    for (int section = 0; section < names.size(); ++section) {
        QTest::addRow("%d", section) << section << int(Qt::Horizontal) << int(Qt::DisplayRole)
                                     << QVariant(names.at(section));
    }
    QTest::newRow("vertical") << 3 << int(Qt::Vertical) << int(Qt::DisplayRole) << QVariant("AlarmStatus");
    QTest::newRow("past the end") << 7 << int(Qt::Horizontal) << int(Qt::DisplayRole) << QVariant();
    QTest::newRow("other role") << 3 << int(Qt::Horizontal) << int(Qt::ToolTipRole) << QVariant();
}

void TestAlarmsListModel::headersAreTheColumnNames()
{
    QFETCH(int, section);
    QFETCH(int, orientation);
    QFETCH(int, role);
    const AlarmsListModel model;
    QTEST(model.headerData(section, static_cast<Qt::Orientation>(orientation), role), "header");
}

void TestAlarmsListModel::onlyTheDisplayRoleIsAnswered()
{
    AlarmsListModel model;
    fill(model, {"7"});
    QCOMPARE(model.data(model.index(0, 0), Qt::DisplayRole), QVariant("7"));
    QVERIFY(!model.data(model.index(0, 0), Qt::EditRole).isValid());
    QVERIFY(!model.data(model.index(0, 0), Qt::UserRole).isValid());
}

void TestAlarmsListModel::dataOutsideTheTableIsInvalid()
{
    AlarmsListModel model;
    fill(model, {"7", "8"});
    const QModelIndex last = model.index(1, 0);
    model.removeRow(1);
    QVERIFY(!model.data(last).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(model.index(0, 7)).isValid());
    QVERIFY(!model.data(model.index(-1, 0)).isValid());
}

void TestAlarmsListModel::setDataWritesTextWhateverTheRole()
{
    AlarmsListModel model;
    fill(model, {"7"});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex status = model.index(0, 3);
    QVERIFY(model.setData(status, 1, Qt::EditRole));
    QCOMPARE(model.data(status), QVariant("1"));
    QVERIFY(model.setData(status, QString("0"), Qt::ToolTipRole));
    QCOMPARE(model.data(status), QVariant("0"));
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.first().at(0).toModelIndex(), status);
    QCOMPARE(changed.first().at(1).toModelIndex(), status);
}

void TestAlarmsListModel::setDataOfAnInvalidIndexChangesNothing()
{
    AlarmsListModel model;
    fill(model, {"7"});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(QModelIndex(), "8"));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(firstColumn(model), QStringList{"7"});
}

void TestAlarmsListModel::groupsAreNotUsed()
{
    AlarmsListModel model;
    fill(model, {"7", "8", "9"});
    QCOMPARE(model.groupCount(), -1);
    QCOMPARE(model.rowCountInGroup(0), 3);
    QCOMPARE(model.rowCountInGroup(-5), 3);
    QCOMPARE(model.groupTitle(0), QString(""));
    QVERIFY(!model.itemData(0, 0, Qt::DisplayRole).isValid());
}

void TestAlarmsListModel::aSingleRowIsInsertedWithAnimation()
{
    AlarmsListModel model;
    fill(model, {"7", "9"});
    const Announcements announcements(&model);
    QVERIFY(model.insertRow(1));
    QCOMPARE(announcements.words, QStringList{"+ 1 1 animated"});
    QCOMPARE(firstColumn(model), (QStringList{"7", "", "9"}));
    for (int column = 0; column < 7; ++column)
        QCOMPARE(model.data(model.index(1, column)), QVariant(QString()));
}

void TestAlarmsListModel::aSingleRowIsRemovedWithAnimation()
{
    AlarmsListModel model;
    fill(model, {"7", "8", "9"});
    const Announcements announcements(&model);
    QVERIFY(model.removeRow(1));
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    QCOMPARE(firstColumn(model), (QStringList{"7", "9"}));
}

void TestAlarmsListModel::manyRowsAreInsertedWithoutAnimation()
{
    AlarmsListModel model;
    const Announcements announcements(&model);
    QVERIFY(model.insertRows(0, 3));
    QCOMPARE(announcements.words, QStringList{"+ 0 2 plain"});
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.data(model.index(2, 6)), QVariant(QString()));
    QCOMPARE(model.rowCount(model.index(0, 0)), 3); // whatever the parent
    QCOMPARE(model.columnCount(model.index(0, 0)), 7);
}

void TestAlarmsListModel::everyCellOfNewRowsIsEmptyAndTellsOfItsFillingOnce()
{
    AlarmsListModel model;
    QVERIFY(model.insertRows(0, 2));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 7; ++column) {
            const QModelIndex cell = model.index(row, column);
            QCOMPARE(model.data(cell), QVariant(QString("")));
            QVERIFY(model.setData(cell, QString("%1.%2").arg(row).arg(column)));
            QCOMPARE(changed.size(), 7 * row + column + 1);
            QCOMPARE(changed.last().at(0).toModelIndex(), cell);
        }
    }
    QCOMPARE(model.data(model.index(1, 6)), QVariant("1.6"));
}

void TestAlarmsListModel::insertingRunsUpToTheCountItself()
{
    AlarmsListModel model;
    fill(model, {"7", "8"});
    QVERIFY(model.insertRows(1, 2));
    // From 1 while below 2: one row, at position 2.
    QCOMPARE(firstColumn(model), (QStringList{"7", "8", ""}));
}

void TestAlarmsListModel::removingRunsUpToTheCountItself()
{
    AlarmsListModel model;
    fill(model, {"7", "8", "9"});
    const Announcements announcements(&model);
    QVERIFY(model.removeRows(1, 2));
    // From 1 while below 2: one row, though two are announced.
    QCOMPARE(announcements.words, QStringList{"- 1 2 plain"});
    QCOMPARE(firstColumn(model), (QStringList{"7", "9"}));
}

void TestAlarmsListModel::theWholeTableIsEmptiedWithoutAnimation()
{
    AlarmsListModel model;
    fill(model, {"7", "8", "9"});
    const Announcements announcements(&model);
    QVERIFY(model.removeRows(0, 3));
    QCOMPARE(announcements.words, QStringList{"- 0 2 plain"});
    QCOMPARE(model.rowCount(), 0);
}

void TestAlarmsListModel::nothingToDoIsNotAnnounced()
{
    AlarmsListModel model;
    const Announcements announcements(&model);
    QVERIFY(model.insertRows(0, 0));
    QVERIFY(model.insertRows(0, -1));
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(announcements.words, QStringList());
    QCOMPARE(model.rowCount(), 0);
}

void TestAlarmsListModel::rowOperationsLogTheirSignatures_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("signature");
    QTest::newRow("insertRow") << "insertRow"
                               << "bool AlarmsListModel::insertRow(int, const QModelIndex&)";
    QTest::newRow("insertRows") << "insertRows"
                                << "virtual bool AlarmsListModel::insertRows(int, int, const QModelIndex&)";
    QTest::newRow("removeRow") << "removeRow"
                               << "bool AlarmsListModel::removeRow(int, const QModelIndex&)";
    QTest::newRow("removeRows") << "removeRows"
                                << "virtual bool AlarmsListModel::removeRows(int, int, const QModelIndex&)";
    QTest::newRow("removeRows of none") << "removeRows of none"
                                        << "virtual bool AlarmsListModel::removeRows(int, int, const QModelIndex&)";
}

void TestAlarmsListModel::rowOperationsLogTheirSignatures()
{
    QFETCH(QString, operation);
    QFETCH(QString, signature);
    AlarmsListModel model;
    if (operation != "removeRows of none")
        fill(model, {"7"});
    const Support::LogCapture log;
    if (operation == "insertRow")
        model.insertRow(0);
    else if (operation == "insertRows")
        model.insertRows(0, 0);
    else if (operation == "removeRow")
        model.removeRow(0);
    else
        model.removeRows(0, 1);
    QCOMPARE(log.lines(QtDebugMsg), (QStringList{signature + " entered", signature + " exited"}));
}

QTEST_GUILESS_MAIN(TestAlarmsListModel)
#include "tst_alarmslistmodel.moc"
