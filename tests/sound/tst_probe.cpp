// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/probe.h"

#include "tests/ringer/soundserver.h"
#include "tests/support/places.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Sound::Probe;

/** No sound server runs here: what a file is worth does not depend on one. */
class TestProbe : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsHowAFileWouldDo_data();
    void tellsHowAFileWouldDo();
    void findsNothingAgainstTheBeeps();

private:
    [[nodiscard]] QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestProbe::initTestCase()
{
    // The first use looks for plug-ins, which takes its time.
    QCOMPARE(Sound::probeBeeps().reason, QString());
    QVERIFY(Support::writeSine(file("sine.wav"), 0.8f, 700));
    QVERIFY(Support::writeSine(file("silent.wav"), 0, 5000));
    QVERIFY(QFile(file("empty.aac")).open(QIODevice::WriteOnly));
    QFile text(file("text.mp3"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    QVERIFY(text.write(QByteArray("no music in here\n").repeated(1000)) > 0);
}

void TestProbe::tellsHowAFileWouldDo_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("verdict");
    QTest::newRow("a tone that ships") << Places::sharedData("sounds/ring-tones/Harbour.aac") << int(Probe::Heard);
    QTest::newRow("a sine") << file("sine.wav") << int(Probe::Heard);
    QTest::newRow("silence") << file("silent.wav") << int(Probe::Silent);
    QTest::newRow("text") << file("text.mp3") << int(Probe::Unplayable);
    QTest::newRow("nothing in it") << file("empty.aac") << int(Probe::Unplayable);
    QTest::newRow("missing") << file("missing.aac") << int(Probe::Unplayable);
    QTest::newRow("a folder") << m_folder.path() << int(Probe::Unplayable);
}

void TestProbe::tellsHowAFileWouldDo()
{
    QFETCH(QString, path);
    const Probe probe = Sound::probeFile(path);
    QTEST(int(probe.verdict), "verdict");
    QCOMPARE(probe.reason.isEmpty(), probe.verdict == Probe::Heard);
}

void TestProbe::findsNothingAgainstTheBeeps()
{
    QCOMPARE(Sound::probeBeeps().verdict, Probe::Heard);
    QCOMPARE(Sound::probeBeeps().reason, QString());
}

QTEST_GUILESS_MAIN(TestProbe)
#include "tst_probe.moc"
