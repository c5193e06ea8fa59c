// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/ringscreen.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

using namespace RingScreen;

class TestStopControl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aSlideToTheEndStops_data();
    void aSlideToTheEndStops();
    void aSlideThatIsGivenUpDoesNot();
    void aTapDoesNot_data();
    void aTapDoesNot();
    void aPressBesideTheKnobTakesNothingAlong();
    void heldUntilItIsFullItStops();
    void heldTooShortItDoesNot();
    void theKeyboardHolds_data();
    void theKeyboardHolds();
    void aKeyLetGoTooSoonDoesNot();
    void controlWithReturnStops();

private:
    void ring(const char *gesture = "");

    Ringer::RingPlugin *m_plugin = nullptr;
    RecordingAnswers m_answers;
};

void TestStopControl::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QString reason;
    m_plugin = load(&reason);
    QVERIFY2(m_plugin, qPrintable(reason));
    m_plugin->setAnswers(&m_answers);
}

void TestStopControl::init()
{
    m_answers.calls.clear();
}

void TestStopControl::cleanup()
{
    m_plugin->hide(1);
    QTRY_VERIFY(!window());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestStopControl::ring(const char *gesture)
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QVERIFY(QDir().mkpath(folder));
    QSettings settings(folder + "/ringer.conf", QSettings::IniFormat);
    settings.setValue("Stop/gesture", QLatin1String(gesture));
    settings.sync();
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QVERIFY(waitForAnswers());
    m_answers.calls.clear();
}

void TestStopControl::aSlideToTheEndStops_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void TestStopControl::aSlideToTheEndStops()
{
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    ring();
    slideToStop();
    QCOMPARE(m_answers.calls, QStringList("dismiss 1"));
}

void TestStopControl::aSlideThatIsGivenUpDoesNot()
{
    ring("slide");
    slideToStop(0.8);
    QVERIFY(m_answers.calls.isEmpty());
}

void TestStopControl::aTapDoesNot_data()
{
    QTest::addColumn<QByteArray>("gesture");
    QTest::newRow("slide") << QByteArray("slide");
    QTest::newRow("hold") << QByteArray("hold");
}

void TestStopControl::aTapDoesNot()
{
    QFETCH(QByteArray, gesture);
    ring(gesture);
    click("stop");
    QTest::keyClick(window(), Qt::Key_Tab);
    QVERIFY(m_answers.calls.isEmpty());
}

void TestStopControl::aPressBesideTheKnobTakesNothingAlong()
{
    ring();
    const auto track = window()->mapFromScene(item("stop")->sceneBoundingRect()).boundingRect();
    QTest::mousePress(window()->viewport(), Qt::LeftButton, {}, track.center());
    QTest::mouseMove(window()->viewport(), QPoint(track.right() - 4, track.center().y()));
    QTest::mouseRelease(window()->viewport(), Qt::LeftButton, {}, QPoint(track.right() - 4, track.center().y()));
    QVERIFY(m_answers.calls.isEmpty());
}

void TestStopControl::heldUntilItIsFullItStops()
{
    ring("hold");
    QElapsedTimer time;
    time.start();
    QTest::mousePress(window()->viewport(), Qt::LeftButton, {}, placeOf("stop"));
    QTRY_COMPARE(m_answers.calls, QStringList("dismiss 1"));
    QVERIFY2(time.elapsed() > 800, qPrintable(QString::number(time.elapsed())));
    QTest::mouseRelease(window()->viewport(), Qt::LeftButton, {}, placeOf("stop"));
    QCOMPARE(m_answers.calls.size(), 1);
}

void TestStopControl::heldTooShortItDoesNot()
{
    ring("hold");
    QElapsedTimer time;
    time.start();
    QTest::mousePress(window()->viewport(), Qt::LeftButton, {}, placeOf("stop"));
    QVERIFY(QTest::qWaitFor([&] { return time.elapsed() > 200; }));
    QTest::mouseRelease(window()->viewport(), Qt::LeftButton, {}, placeOf("stop"));
    QVERIFY(QTest::qWaitFor([&] { return time.elapsed() > 1300; }));
    QVERIFY(m_answers.calls.isEmpty());
}

void TestStopControl::theKeyboardHolds_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
}

void TestStopControl::theKeyboardHolds()
{
    QFETCH(Qt::Key, key);
    ring();
    item("stop")->setFocus(Qt::TabFocusReason);
    QTest::keyPress(window(), key);
    QVERIFY(m_answers.calls.isEmpty());
    QTRY_COMPARE(m_answers.calls, QStringList("dismiss 1"));
    QTest::keyRelease(window(), key);
    QCOMPARE(m_answers.calls.size(), 1);
}

void TestStopControl::aKeyLetGoTooSoonDoesNot()
{
    ring();
    item("stop")->setFocus(Qt::TabFocusReason);
    QElapsedTimer time;
    time.start();
    QTest::keyClick(window(), Qt::Key_Return);
    QVERIFY(QTest::qWaitFor([&] { return time.elapsed() > 1200; }));
    QVERIFY(m_answers.calls.isEmpty());
}

void TestStopControl::controlWithReturnStops()
{
    ring();
    QTest::keyClick(window(), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_answers.calls, QStringList("dismiss 1"));
}

QTEST_MAIN(TestStopControl)
#include "tst_stopcontrol.moc"
