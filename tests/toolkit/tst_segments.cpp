// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/segments_p.h"

#include <QTest>

using namespace Touch;

namespace {

constexpr qreal endless = 16777215;

Segment segment(qreal minimum, qreal preferred, qreal maximum, int stretch = 0, bool isExpanding = false)
{
    Segment result;
    result.minimum = minimum;
    result.preferred = preferred;
    result.maximum = maximum;
    result.stretch = stretch;
    result.isExpanding = isExpanding;
    return result;
}

Segment nothing()
{
    Segment result;
    result.isEmpty = true;
    return result;
}

} // namespace

/** How room along one direction is shared out. */
class TestSegments : public QObject
{
    Q_OBJECT

private slots:
    void sharesRoom_data();
    void sharesRoom();
    void addsUpWithSpacingBetweenWhatIsSeen();
    void widensWhatAnItemSpans_data();
    void widensWhatAnItemSpans();
};

void TestSegments::sharesRoom_data()
{
    QTest::addColumn<QList<Segment>>("segments");
    QTest::addColumn<qreal>("available");
    QTest::addColumn<QList<qreal>>("sizes");
    QTest::addColumn<QList<qreal>>("positions");
    using List = QList<Segment>;
    using Numbers = QList<qreal>;
    // Spacing is 10, the line starts at 5.
    QTest::newRow("exactly what is preferred")
        << List{segment(0, 20, 40), segment(0, 30, 40)} << 60.0 << Numbers{20, 30} << Numbers{5, 35};
    QTest::newRow("too little is taken above the minimum")
        << List{segment(10, 20, 40), segment(20, 40, 40)} << 55.0 << Numbers{15, 30} << Numbers{5, 30};
    QTest::newRow("never below the minimum")
        << List{segment(10, 20, 40), segment(20, 40, 40)} << 10.0 << Numbers{10, 20} << Numbers{5, 25};
    QTest::newRow("stretches in proportion")
        << List{segment(0, 0, endless, 1), segment(0, 0, endless, 3)} << 90.0 << Numbers{20, 60} << Numbers{5, 35};
    QTest::newRow("stretch before expanding") << List{segment(0, 10, endless, 0, true), segment(0, 10, endless, 1)}
                                              << 90.0 << Numbers{10, 70} << Numbers{5, 25};
    QTest::newRow("expanding before what may grow")
        << List{segment(0, 10, endless), segment(0, 10, endless, 0, true)} << 90.0 << Numbers{10, 70} << Numbers{5, 25};
    QTest::newRow("what may grow, evenly, up to its maximum")
        << List{segment(0, 10, 20), segment(0, 10, endless)} << 90.0 << Numbers{20, 60} << Numbers{5, 35};
    QTest::newRow("a stretched one at its maximum leaves the rest to others")
        << List{segment(0, 0, 30, 1), segment(0, 0, endless, 0, true)} << 90.0 << Numbers{30, 50} << Numbers{5, 45};
    QTest::newRow("nothing grows: room stays at the end")
        << List{segment(10, 10, 10), segment(10, 10, 10)} << 90.0 << Numbers{10, 10} << Numbers{5, 25};
    QTest::newRow("what is not seen takes no spacing") << List{segment(10, 10, 10), nothing(), segment(10, 10, 10)}
                                                       << 30.0 << Numbers{10, 0, 10} << Numbers{5, 25, 25};
}

void TestSegments::sharesRoom()
{
    QFETCH(QList<Segment>, segments);
    QFETCH(qreal, available);
    distribute(segments, 5, available, 10);
    QList<qreal> sizes;
    QList<qreal> positions;
    for (const Segment &segment : std::as_const(segments)) {
        sizes << segment.size;
        positions << segment.position;
    }
    QTEST(sizes, "sizes");
    QTEST(positions, "positions");
}

void TestSegments::addsUpWithSpacingBetweenWhatIsSeen()
{
    const QList<Segment> segments{segment(1, 10, 100), nothing(), segment(2, 20, 200)};
    QCOMPARE(totalSize(segments, 5, SegmentSize::Minimum), 8.0);
    QCOMPARE(totalSize(segments, 5, SegmentSize::Preferred), 35.0);
    QCOMPARE(totalSize(segments, 5, SegmentSize::Maximum), 305.0);
    QCOMPARE(totalSize({}, 5, SegmentSize::Preferred), 0.0);
}

void TestSegments::widensWhatAnItemSpans_data()
{
    QTest::addColumn<QList<Segment>>("segments");
    QTest::addColumn<Segment>("wanted");
    QTest::addColumn<qreal>("preferred");
    using List = QList<Segment>;
    QTest::newRow("large enough already")
        << List{segment(0, 30, 40), segment(0, 30, 40)} << segment(0, 50, endless) << 70.0;
    QTest::newRow("grows what may grow") << List{segment(0, 10, 10), segment(0, 10, endless)} << segment(0, 50, endless)
                                         << 50.0;
    QTest::newRow("beyond the maximum of both")
        << List{segment(10, 10, 10), segment(10, 10, 10)} << segment(50, 50, 50) << 50.0;
    QTest::newRow("over cells that nothing else is in") << List{nothing(), nothing()} << segment(0, 50, 80) << 50.0;
}

void TestSegments::widensWhatAnItemSpans()
{
    QFETCH(QList<Segment>, segments);
    QFETCH(Segment, wanted);
    widenSpan(segments, 0, 1, wanted, 10);
    QTEST(totalSize(segments, 10, SegmentSize::Preferred), "preferred");
    QVERIFY(totalSize(segments, 10, SegmentSize::Minimum) >= wanted.minimum);
}

QTEST_APPLESS_MAIN(TestSegments)
#include "tst_segments.moc"
