// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/outputkeeper.h"
#include "tests/ringer/sinknames.h"

#include <QFile>
#include <QStandardPaths>
#include <QTest>

using Sound::OutputsBefore;
using Sound::PulseSink;
using Place = Sound::PulseSink::Place;
namespace OutputRecord = Sound::OutputRecord;

namespace {

PulseSink sink(const char *id, Place place, bool isDefault = false)
{
    return {QString::fromLatin1(id), {}, place, 100, false, false, isDefault};
}

} // namespace

/** Which outputs are to sound, and what is written down of them; tst_alarmtone has the server. */
class TestOutputKeeper : public QObject
{
    Q_OBJECT

private slots:
    void outputsFollowWhereTheDefaultIsWorn_data();
    void outputsFollowWhereTheDefaultIsWorn();
    void aRecordOutlivesItsProgram();
    void linesThatSayNothingAreLeftOut();
};

void TestOutputKeeper::outputsFollowWhereTheDefaultIsWorn_data()
{
    QTest::addColumn<QList<PulseSink>>("sinks");
    QTest::addColumn<QString>("outputs");
    QTest::addColumn<QStringList>("shut");
    const auto speaker = sink("speaker", Place::Room);
    const QStringList none;
    QTest::newRow("no sink") << QList<PulseSink>() << "" << none;
    QTest::newRow("none is the default") << QList{speaker} << "" << none;
    QTest::newRow("one of which nothing is known") << QList{sink("a", Place::Unknown, true), speaker} << "a" << none;
    QTest::newRow("the loudspeaker") << QList{sink("a", Place::Room, true), sink("ears", Place::Ears)} << "a" << none;
    QTest::newRow("headphones alone") << QList{sink("ears", Place::Ears, true), sink("b", Place::Unknown)} << "ears"
                                      << none;
    QTest::newRow("headphones") << QList{speaker, sink("ears", Place::Ears, true)} << "ears speaker" << none;

    const auto unknown = sink("b", Place::Unknown);
    const auto ears = sink("ears", Place::Ears);
    const auto shut = sink("shut", Place::Room, true);
    QTest::newRow("shut, alone") << QList{shut} << "shut" << QStringList{"shut"};
    QTest::newRow("shut, beside others") << QList{ears, unknown, shut, speaker} << "shut speaker"
                                         << QStringList{"shut"};
    QTest::newRow("shut, as the loudspeaker is")
        << QList{ears, unknown, shut, speaker} << "shut b" << QStringList{"shut", "speaker"};
    QTest::newRow("shut, but for the ears") << QList{shut, ears} << "shut ears" << QStringList{"shut"};
    QTest::newRow("headphones, and the loudspeaker is shut")
        << QList{speaker, sink("ears", Place::Ears, true)} << "ears" << QStringList{"speaker"};
}

void TestOutputKeeper::outputsFollowWhereTheDefaultIsWorn()
{
    QFETCH(QList<PulseSink>, sinks);
    QFETCH(QStringList, shut);
    QTEST(namesOf(Sound::outputsOf(sinks, shut)), "outputs");
}

void TestOutputKeeper::aRecordOutlivesItsProgram()
{
    const OutputsBefore outputs{{"a", {true, {}}}, {"b of two words", {false, 20}}, {"c", {true, 0}}};
    OutputRecord::write(outputs);
    QCOMPARE(OutputRecord::read(), outputs);
    OutputRecord::write({});
    QCOMPARE(OutputRecord::read(), OutputsBefore());
}

void TestOutputKeeper::linesThatSayNothingAreLeftOut()
{
    QFile file(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/clock.outputs");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("muted\nmuted -\n\nmuted - a\nnonsense x b\n\xff\xfe\n");
    file.close();
    QCOMPARE(OutputRecord::read(), (OutputsBefore{{"a", {true, {}}}, {"b", {false, {}}}}));
    OutputRecord::write({});
}

QTEST_GUILESS_MAIN(TestOutputKeeper)
#include "tst_outputkeeper.moc"
