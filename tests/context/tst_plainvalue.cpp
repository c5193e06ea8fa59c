// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"
#include "platform/context/contextpublisher.h"
#include "platform/context/plainvalue_p.h"
#include "tests/support/privatebus.h"

#include <QDBusMetaType>
#include <QPoint>
#include <QTest>

using Names = QMap<int, QString>;
using Points = QList<QPoint>;

/** Values of every shape that D-Bus knows arrive without any wrapper of it. */
class TestPlainValue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void arrivesPlain_data();
    void arrivesPlain();
    void isPlainAlsoWithoutABus_data();
    void isPlainAlsoWithoutABus();

private:
    Support::PrivateBus m_bus;
};

void TestPlainValue::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    qDBusRegisterMetaType<Names>();
    qDBusRegisterMetaType<Points>();
    QVERIFY(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "provider").isConnected());
}

void TestPlainValue::arrivesPlain_data()
{
    QTest::addColumn<QVariant>("sent");
    QTest::addColumn<QVariant>("arrived");

    const auto row = [](const char *name, const QVariant &sent, const QVariant &arrived) {
        QTest::newRow(name) << sent << arrived;
    };
    row("number", Q_UINT64_C(18446744073709551615), Q_UINT64_C(18446744073709551615));
    row("texts", QStringList{"a", "b"}, QStringList{"a", "b"});
    row("numbers", QVariant::fromValue(QList<int>{1, 2}), QVariantList{1, 2});
    row("map by number", QVariant::fromValue(Names{{7, "seven"}}), QVariantMap{{"7", "seven"}});
    row("structure", QPoint(3, 4), QVariantList{3, 4});
    row("structures", QVariant::fromValue(Points{{3, 4}, {5, 6}}),
        QVariantList{QVariant(QVariantList{3, 4}), QVariant(QVariantList{5, 6})});
    row("map of structures", QVariantMap{{"at", QPoint(3, 4)}}, QVariantMap{{"at", QVariantList{3, 4}}});
    row("empty list", QVariantList(), QVariantList());
    row("wrapped twice", QVariantMap{{"x", QVariant::fromValue(QDBusVariant(QVariantMap{{"y", 1}}))}},
        QVariantMap{{"x", QVariantMap{{"y", 1}}}});
}

void TestPlainValue::arrivesPlain()
{
    QFETCH(QVariant, sent);
    QFETCH(QVariant, arrived);
    const ContextPublisher publisher("Test.Shape", sent, QDBusConnection("provider"));
    QVERIFY(publisher.isPublished());
    ContextProperty property("Test.Shape");
    property.subscribe();
    QTRY_VERIFY(property.value().isValid());
    QCOMPARE(property.value(), arrived);
}

void TestPlainValue::isPlainAlsoWithoutABus_data()
{
    QTest::addColumn<QVariant>("wrapped");
    QTest::addColumn<QVariant>("plain");

    const QVariant inner = QVariant::fromValue(QDBusVariant(5));
    QTest::newRow("variant") << inner << QVariant(5);
    QTest::newRow("map") << QVariant(QVariantMap{{"a", inner}}) << QVariant(QVariantMap{{"a", 5}});
    QTest::newRow("list") << QVariant(QVariantList{inner, QVariantList{inner}})
                          << QVariant(QVariantList{5, QVariantList{5}});
}

void TestPlainValue::isPlainAlsoWithoutABus()
{
    QFETCH(QVariant, wrapped);
    QTEST(Context::plainValue(wrapped), "plain");
}

QTEST_GUILESS_MAIN(TestPlainValue)
#include "tst_plainvalue.moc"
