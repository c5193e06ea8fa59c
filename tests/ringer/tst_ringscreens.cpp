// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/ringscreen.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTranslator>

using namespace RingScreen;

/// Pictures of the ring screen, for people to look at: in the folder screenshots of the build.
class TestRingScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everythingHasItsPlace_data();
    void everythingHasItsPlace();
    void snoozeAndStopAreThereWholeWhateverElseThereIs_data();
    void snoozeAndStopAreThereWholeWhateverElseThereIs();
    void cleanup();

private:
    void expectPlaces(const QSize &size, bool hasWaiting);

    QTranslator m_texts;
    Ringer::RingPlugin *m_plugin = nullptr;
    RecordingAnswers m_answers;
};

void TestRingScreens::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QVERIFY(
        m_texts.load(QCoreApplication::applicationDirPath() + "/../platform/ringer/texts/translations/ringer_en.qm"));
    QCoreApplication::installTranslator(&m_texts);
    QString reason;
    m_plugin = load(&reason);
    QVERIFY2(m_plugin, qPrintable(reason));
    m_plugin->setAnswers(&m_answers);
}

void TestRingScreens::cleanup()
{
    for (quint32 cookie = 1; cookie < 4; ++cookie)
        m_plugin->hide(cookie);
    QTRY_VERIFY(!window());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestRingScreens::everythingHasItsPlace_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("alarms");
    QTest::addColumn<QSize>("size");
    for (const auto *theme : {"dark", "light"}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const auto alarms : {1, 2, 3}) {
                for (const auto size : {QSize(360, 640), QSize(480, 854), QSize(854, 480)})
                    QTest::addRow("%s-%s-%d-alarms-%dx%d", theme, direction == Qt::LeftToRight ? "ltr" : "rtl", alarms,
                                  size.width(), size.height())
                        << QByteArray(theme) << direction << alarms << size;
            }
        }
    }
}

void TestRingScreens::everythingHasItsPlace()
{
    QFETCH(QByteArray, theme);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, alarms);
    QFETCH(QSize, size);
    qputenv("CLOCK_THEME", theme);
    QApplication::setLayoutDirection(direction);
    const QStringList titles{"Wake up", "Take the pills", "Call the dentist before nine"};
    for (int index = 0; index < alarms; ++index)
        m_plugin->show({quint32(index + 1), titles.at(index), QDateTime::currentDateTimeUtc(), {}, 600});
    QVERIFY(waitForAnswers());
    window()->resize(size);
    QTRY_COMPARE(window()->viewport()->size(), size);
    QTRY_COMPARE(item("stop")->scene()->sceneRect().size().toSize(), size);
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    expectPlaces(size, alarms > 1);

    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QVERIFY(folder.mkpath("."));
    QVERIFY(window()->grab().save(folder.filePath(QStringLiteral("ring-%1.png").arg(QTest::currentDataTag()))));
}

void TestRingScreens::snoozeAndStopAreThereWholeWhateverElseThereIs_data()
{
    QTest::addColumn<QSize>("size");
    for (const auto size : {QSize(360, 640), QSize(320, 568), QSize(480, 854), QSize(854, 480), QSize(640, 360)})
        QTest::addRow("long-%dx%d", size.width(), size.height()) << size;
}

void TestRingScreens::snoozeAndStopAreThereWholeWhateverElseThereIs()
{
    QFETCH(QSize, size);
    const auto title
        = QStringLiteral("Take the blue pills with a full glass of water before breakfast, then call nine");
    for (quint32 cookie = 1; cookie < 4; ++cookie)
        m_plugin->show({cookie, title, QDateTime::currentDateTimeUtc(), {}, 600});
    QVERIFY(waitForAnswers());
    window()->resize(size);
    QTRY_COMPARE(item("stop")->scene()->sceneRect().size().toSize(), size);
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (const auto *name : {"snooze", "stop"}) {
        const auto place = item(name)->sceneBoundingRect();
        QVERIFY2(QRectF(QPointF(), size).contains(place) && place.height() >= 56, name);
    }
    QVERIFY(item("stop")->sceneBoundingRect().top() - item("snooze")->sceneBoundingRect().bottom() >= 40);
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QVERIFY(window()->grab().save(folder.filePath(QStringLiteral("ring-%1.png").arg(QTest::currentDataTag()))));
}

void TestRingScreens::expectPlaces(const QSize &size, bool hasWaiting)
{
    QStringList names{"snooze", "snooze5", "snooze30", "stop"};
    if (hasWaiting)
        names += "waiting0";
    const QRectF screen(QPointF(), size);
    for (const auto &name : names) {
        const auto place = item(name)->sceneBoundingRect();
        QVERIFY2(screen.contains(place) && place.width() >= 48 && place.height() >= 48, qPrintable(name));
    }
    QVERIFY(item("stop")->sceneBoundingRect().top() - item("snooze5")->sceneBoundingRect().bottom() >= 40);
}

QTEST_MAIN(TestRingScreens)
#include "tst_ringscreens.moc"
