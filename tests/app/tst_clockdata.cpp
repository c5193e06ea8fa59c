// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "data/clockdata.h"

#include "platform/toolkit/theme.h"
#include "tests/support/places.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

namespace {

/** What an expression captures in the application's sources, with the file it stands in. */
QList<std::pair<QString, QString>> foundInSources(const QString &pattern)
{
    const QRegularExpression expression(pattern);
    QList<std::pair<QString, QString>> found;
    for (const char *folder : {"alarms", "alarmlist", "editor", "mainview", "app"}) {
        QDirIterator files(Places::source(folder), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QString text = QString::fromUtf8(file.readAll());
            for (auto match = expression.globalMatch(text); match.hasNext();)
                found.append({match.next().captured(1), files.fileName()});
        }
    }
    return found;
}

void addRows(const QString &pattern)
{
    QTest::addColumn<QString>("name");
    for (const auto &[name, file] : foundInSources(pattern))
        QTest::addRow("%s in %s", qPrintable(name), qPrintable(file)) << name;
}

} // namespace

class TestClockData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTextIsInTheCatalogue_data() { addRows("qtTrId\\(\"([^\"]+)\""); }
    void everyTextIsInTheCatalogue();
    void daysHavePluralForms();
    void everyStyleIsInTheTheme_data() { addRows("setStyleName\\(\"([^\"]+)\""); }
    void everyStyleIsInTheTheme();
    void everyIconIsThere_data() { addRows("\"(icon-m-[^\"]+)\""); }
    void everyIconIsThere();
    void theProgramHasAnIcon();

private:
    QTranslator m_catalogue;
};

void TestClockData::initTestCase()
{
    initClockData();
    QVERIFY(m_catalogue.load(":/translations/clock_en.qm"));
    QVERIFY(QCoreApplication::installTranslator(&m_catalogue));
    QString error;
    QVERIFY2(Touch::Theme::instance().load(":/theme/clock.json", &error), qPrintable(error));
}

void TestClockData::everyTextIsInTheCatalogue()
{
    QFETCH(QString, name);
    QVERIFY(qtTrId(name.toUtf8()) != name);
}

void TestClockData::daysHavePluralForms()
{
    QCOMPARE(qtTrId("qtn_cloc_about_days", 1), "about 1 day");
    QCOMPARE(qtTrId("qtn_cloc_about_days", 3), "about 3 days");
}

void TestClockData::everyStyleIsInTheTheme()
{
    QFETCH(QString, name);
    QVERIFY(Touch::Theme::instance().hasStyle(name));
}

void TestClockData::everyIconIsThere()
{
    QFETCH(QString, name);
    QVERIFY(!Touch::Theme::instance().icon(name, QSize(24, 24), Qt::black).isNull());
}

void TestClockData::theProgramHasAnIcon()
{
    QVERIFY(!QPixmap(":/icons/clock.svg").isNull());
}

QTEST_MAIN(TestClockData)
#include "tst_clockdata.moc"
