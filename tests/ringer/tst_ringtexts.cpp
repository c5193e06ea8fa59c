// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/texts/ringtexts.h"

#include "tests/support/places.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

/** What is said of an alarm that rings. */
class TestRingTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { RingTexts::install(); }
    void everyTextIsInTheCatalogue_data();
    void everyTextIsInTheCatalogue();
    void aTitleIsOneLineNeverEmptyAndNotEndless();
    void aSnoozeSaysItsMinutes();
};

void TestRingTexts::everyTextIsInTheCatalogue_data()
{
    QTest::addColumn<QByteArray>("name");
    const QRegularExpression expression("qtTrId\\(\"([^\"]+)\"");
    QDirIterator files(Places::source("platform/ringer"), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto text = QString::fromUtf8(file.readAll());
        for (auto match = expression.globalMatch(text); match.hasNext();) {
            const auto name = match.next().captured(1).toLatin1();
            QTest::newRow(name.constData()) << name;
        }
    }
}

void TestRingTexts::everyTextIsInTheCatalogue()
{
    QFETCH(QByteArray, name);
    QVERIFY(qtTrId(name.constData()) != QString::fromLatin1(name));
}

void TestRingTexts::aTitleIsOneLineNeverEmptyAndNotEndless()
{
    QCOMPARE(RingTexts::title({}), "Alarm");
    QCOMPARE(RingTexts::title("  two\n lines "), "two lines");
    QCOMPARE(RingTexts::title(QString(4096, 'x')), QString(90, 'x') + "…");
}

void TestRingTexts::aSnoozeSaysItsMinutes()
{
    QCOMPARE(RingTexts::snooze(600), "Snooze · 10 min");
    QCOMPARE(RingTexts::snooze(59), "Snooze");
}

QTEST_GUILESS_MAIN(TestRingTexts)
#include "tst_ringtexts.moc"
