// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/kinetics_p.h"

#include <QTest>

using namespace Touch;

class TestKinetics : public QObject
{
    Q_OBJECT

private slots:
    void slowsDownAndRests();
    void endsAPushAtItsDistance_data();
    void endsAPushAtItsDistance();
    void doesNotDependOnTheFrameRate();
    void givesWayHalfBeyondItsEnds();
    void comesBackToItsEnd();

private:
    static int run(Kinetics &axis, qreal seconds);
};

/** Steps until it rests; answers the number of steps, at most 10,000. */
int TestKinetics::run(Kinetics &axis, qreal seconds)
{
    int steps = 1;
    while (axis.advance(seconds) && steps < 10000)
        ++steps;
    return steps;
}

void TestKinetics::slowsDownAndRests()
{
    Kinetics axis;
    axis.setMaximum(10000);
    axis.flick(2000);
    axis.advance(0.016);
    const qreal first = axis.position();
    axis.advance(0.016);
    QVERIFY(axis.position() - first < first);
    QVERIFY(run(axis, 0.016) < 200);
    QCOMPARE(axis.velocity(), 0.0);
}

void TestKinetics::endsAPushAtItsDistance_data()
{
    QTest::addColumn<qreal>("distance");
    QTest::addColumn<qreal>("position");
    QTest::newRow("a notch") << 72.0 << 172.0;
    QTest::newRow("back") << -72.0 << 28.0;
    QTest::newRow("not beyond the end") << 5000.0 << 1000.0;
    QTest::newRow("not beyond the start") << -5000.0 << 0.0;
}

void TestKinetics::endsAPushAtItsDistance()
{
    QFETCH(qreal, distance);
    QFETCH(qreal, position);
    Kinetics axis;
    axis.setMaximum(1000);
    axis.jumpTo(100);
    axis.push(distance);
    run(axis, 0.016);
    QVERIFY2(qAbs(axis.position() - position) < 4, qPrintable(QString::number(axis.position())));
}

void TestKinetics::doesNotDependOnTheFrameRate()
{
    Kinetics fast;
    Kinetics slow;
    for (Kinetics *axis : {&fast, &slow}) {
        axis->setMaximum(100000);
        axis->flick(1500);
    }
    for (int i = 0; i < 60; ++i)
        fast.advance(1.0 / 120);
    for (int i = 0; i < 15; ++i)
        slow.advance(1.0 / 30);
    QVERIFY(qAbs(fast.position() - slow.position()) < 0.01);
}

void TestKinetics::givesWayHalfBeyondItsEnds()
{
    Kinetics axis;
    axis.setMaximum(100);
    axis.dragTo(-40);
    QCOMPARE(axis.position(), -20.0);
    QCOMPARE(axis.dragPosition(), -40.0);
    axis.dragTo(160);
    QCOMPARE(axis.position(), 130.0);
    QCOMPARE(axis.dragPosition(), 160.0);
}

void TestKinetics::comesBackToItsEnd()
{
    Kinetics axis;
    axis.setMaximum(100);
    axis.flick(3000);
    qreal furthest = 0;
    for (int i = 0; i < 1000 && axis.advance(0.016); ++i)
        furthest = qMax(furthest, axis.position());
    QVERIFY(furthest > 100);
    QCOMPARE(axis.position(), 100.0);
}

QTEST_APPLESS_MAIN(TestKinetics)
#include "tst_kinetics.moc"
