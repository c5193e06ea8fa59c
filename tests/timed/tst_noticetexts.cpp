// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/noticetexts.h"

#include "platform/locale/locale.h"
#include "platform/timed/rules/zone.h"
#include "platform/timedclient/wire.h"
#include "tests/support/places.h"
#include "tests/timed/world.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

using namespace Astel::Timed;
using Touch::Locale;

/** The texts of notices, and how they name moments. */
class TestNoticeTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { NoticeTexts::install(); }
    void everyTextIsInTheCatalogue_data();
    void everyTextIsInTheCatalogue();
    void momentsFollowTheUsersFormats_data();
    void momentsFollowTheUsersFormats();
    void titlesAreOneLineAndNeverEmpty();
};

void TestNoticeTexts::everyTextIsInTheCatalogue_data()
{
    QTest::addColumn<QByteArray>("name");
    const QRegularExpression expression("qtTrId\\(\"([^\"]+)\"");
    QDirIterator files(Places::source("platform/timed"), {"*.cpp"}, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = expression.globalMatch(text); match.hasNext();) {
            const QByteArray name = match.next().captured(1).toLatin1();
            QTest::newRow(name.constData()) << name;
        }
    }
}

void TestNoticeTexts::everyTextIsInTheCatalogue()
{
    QFETCH(QByteArray, name);
    QVERIFY(qtTrId(name.constData()) != QString::fromLatin1(name));
}

void TestNoticeTexts::momentsFollowTheUsersFormats_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Locale::TimeFormat24h>("format");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("dayAndTime");
    QTest::newRow("British") << "en_GB" << Locale::LocaleDefault << "07:00"
                             << "Fri, 20 Nov, 07:00";
    QTest::newRow("German") << "de_DE" << Locale::LocaleDefault << "07:00"
                            << "Fr., 20. Nov., 07:00";
    QTest::newRow("American, 24 hours chosen") << "en_US" << Locale::TwentyFourHour << "07:00"
                                               << "Fri, Nov 20, 07:00";
    QTest::newRow("British, 12 hours chosen") << "en_GB" << Locale::TwelveHour << "7:00\u202Fam"
                                              << "Fri, 20 Nov, 7:00\u202Fam";
}

void TestNoticeTexts::momentsFollowTheUsersFormats()
{
    QFETCH(QString, locale);
    QFETCH(Locale::TimeFormat24h, format);
    Locale chosen(locale);
    chosen.setTimeFormat24h(format);
    chosen.installTrCatalog("timed");
    Locale::setDefault(chosen);
    const auto berlin = Rules::Zone::create("Europe/Berlin");
    QTEST(NoticeTexts::time(Seven, *berlin), "time");
    QTEST(NoticeTexts::dayAndTime(Seven, *berlin), "dayAndTime");
}

void TestNoticeTexts::titlesAreOneLineAndNeverEmpty()
{
    Wire::Event event;
    QCOMPARE(NoticeTexts::title(event), "Alarm");
    event.attributes = {{"TITLE", "  two\n lines "}};
    QCOMPARE(NoticeTexts::title(event), "two lines");
}

QTEST_GUILESS_MAIN(TestNoticeTexts)
#include "tst_noticetexts.moc"
