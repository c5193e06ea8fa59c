// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/localzone.h"
#include "tests/support/logcapture.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Astel::Timed;

class TestLocalZone : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void linkNamesTheZone();
    void replacedLinkIsFollowed();
    void unknownZoneKeepsTheOneBefore();
    void environmentWins();
    void toldZoneNamesACopy();
    void linkWinsOverTheToldZone();
    void copyThatIsWrittenOverIsReadAgain();

private:
    QString path() const { return m_folder->filePath("localtime"); }
    void link(const char *zone) const
    {
        QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/") + zone, path() + ".new"));
        QCOMPARE(std::rename(QFile::encodeName(path() + ".new"), QFile::encodeName(path())), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestLocalZone::init()
{
    qunsetenv("TZ");
    m_folder = std::make_unique<QTemporaryDir>();
    link("Asia/Kathmandu");
}

void TestLocalZone::linkNamesTheZone()
{
    const LocalZone zone(path());
    QCOMPARE(zone.zone().id(), "Asia/Kathmandu");
}

void TestLocalZone::replacedLinkIsFollowed()
{
    const LocalZone zone(path());
    const QSignalSpy changed(&zone, &ZoneSource::changed);
    link("America/Havana");
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(zone.zone().id(), "America/Havana");
}

void TestLocalZone::unknownZoneKeepsTheOneBefore()
{
    const LocalZone zone(path());
    const QSignalSpy changed(&zone, &ZoneSource::changed);
    const Support::LogCapture log;
    link("Atlantis/Capital");
    QTRY_COMPARE(log.lines(QtWarningMsg).value(0),
                 QStringLiteral("unknown time zone \"Atlantis/Capital\", keeping Asia/Kathmandu"));
    QCOMPARE(zone.zone().id(), "Asia/Kathmandu");
    link("Europe/Rome");
    QTRY_COMPARE(zone.zone().id(), "Europe/Rome");
    QCOMPARE(changed.size(), 1);
}

void TestLocalZone::environmentWins()
{
    qputenv("TZ", "Australia/Lord_Howe");
    const LocalZone zone(path());
    QCOMPARE(zone.zone().id(), "Australia/Lord_Howe");
}

void TestLocalZone::toldZoneNamesACopy()
{
    QVERIFY(QFile::remove(path()));
    QVERIFY(QFile::copy("/usr/share/zoneinfo/Asia/Tokyo", path()));
    LocalZone zone(path());
    const QSignalSpy changed(&zone, &ZoneSource::changed);
    zone.told("Asia/Tokyo");
    QCOMPARE(zone.zone().id(), "Asia/Tokyo");
    zone.told("Asia/Tokyo");
    QCOMPARE(changed.size(), 1);
}

void TestLocalZone::linkWinsOverTheToldZone()
{
    LocalZone zone(path());
    zone.told("Asia/Tokyo");
    QCOMPARE(zone.zone().id(), "Asia/Kathmandu");
    zone.told({});
    QCOMPARE(zone.zone().id(), "Asia/Kathmandu");
}

void TestLocalZone::copyThatIsWrittenOverIsReadAgain()
{
    QVERIFY(QFile::remove(path()));
    QVERIFY(QFile::copy("/usr/share/zoneinfo/Asia/Tokyo", path()));
    LocalZone zone(path());
    const Support::LogCapture log;
    // A name that is unknown is logged each time that the zone is read.
    zone.told("Atlantis/Capital");
    QCOMPARE(log.lines(QtWarningMsg).size(), 1);
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.write("TZif") > 0);
    file.close();
    QTRY_VERIFY(log.lines(QtWarningMsg).size() > 1);
}

QTEST_GUILESS_MAIN(TestLocalZone)
#include "tst_localzone.moc"
