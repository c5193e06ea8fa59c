// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringplugin.h"
#include "tests/support/places.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QGraphicsWidget>
#include <QPluginLoader>
#include <QTest>

namespace {

class RecordingAnswers : public Ringer::Answers
{
public:
    QStringList calls;

    void shown(quint32 cookie) override { calls += QStringLiteral("shown %1").arg(cookie); }
    void snooze(quint32 cookie, int seconds) override
    {
        calls += QStringLiteral("snooze %1 %2").arg(cookie).arg(seconds);
    }
    void dismiss(quint32 cookie) override { calls += QStringLiteral("dismiss %1").arg(cookie); }
};

Ringer::Alarm teaTime(quint32 cookie, int snoozeSeconds = 600)
{
    return {cookie, QStringLiteral("Tea"), QDateTime::currentDateTimeUtc(), {}, snoozeSeconds};
}

QGraphicsView *window()
{
    for (auto *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            return qobject_cast<QGraphicsView *>(widget);
    }
    return nullptr;
}

QGraphicsWidget *item(const QString &name)
{
    const auto items = window()->scene()->items();
    for (auto *each : items) {
        if (each->isWidget() && static_cast<QGraphicsWidget *>(each)->objectName() == name)
            return static_cast<QGraphicsWidget *>(each);
    }
    return nullptr;
}

void click(const QString &name)
{
    const auto place = window()->mapFromScene(item(name)->sceneBoundingRect().center());
    QTest::mouseClick(window()->viewport(), Qt::LeftButton, {}, place);
}

} // namespace

class TestClockAlarm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void saysWhenItIsSeen();
    void theButtonsAnswer();
    void snoozeKeys_data();
    void snoozeKeys();
    void aHeldKeySnoozesOnce();
    void stopIsReachedByTab();
    void closingTheWindowSnoozes();
    void withoutASnoozeOnlyStopEndsIt();
    void alarmsAreAnsweredInTheirOrder();
    void theKeyThatStoppedOneSnoozesTheNext();
    void theButtonsAreLargeAndFarApart();

private:
    Ringer::RingPlugin *m_plugin = nullptr;
    RecordingAnswers m_answers;
};

void TestClockAlarm::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QPluginLoader loader(Places::ringerPlugin("libclockalarm.so"));
    m_plugin = qobject_cast<Ringer::RingPlugin *>(loader.instance());
    QVERIFY2(m_plugin, qPrintable(loader.errorString()));
    m_plugin->setAnswers(&m_answers);
}

void TestClockAlarm::init()
{
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(QTest::qWaitForWindowActive(window()));
    m_answers.calls.clear();
}

void TestClockAlarm::cleanup()
{
    for (quint32 cookie = 1; cookie < 4; ++cookie)
        m_plugin->hide(cookie);
    QTRY_VERIFY(!window());
    m_answers.calls.clear();
}

void TestClockAlarm::saysWhenItIsSeen()
{
    m_plugin->show(teaTime(1));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    m_plugin->show(teaTime(2));
    QTRY_COMPARE(m_answers.calls, QStringList({"shown 1", "shown 2"}));
}

void TestClockAlarm::theButtonsAnswer()
{
    click("snooze");
    click("stop");
    QCOMPARE(m_answers.calls, QStringList({"snooze 1 600", "dismiss 1"}));
}

void TestClockAlarm::snoozeKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("volume up") << Qt::Key_VolumeUp;
    QTest::newRow("volume down") << Qt::Key_VolumeDown;
    QTest::newRow("mute") << Qt::Key_VolumeMute;
    QTest::newRow("power") << Qt::Key_PowerOff;
}

void TestClockAlarm::snoozeKeys()
{
    QFETCH(Qt::Key, key);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, {});
        QApplication::sendEvent(window(), &event);
    }
    QCOMPARE(m_answers.calls, QStringList("snooze 1 600"));
}

void TestClockAlarm::aHeldKeySnoozesOnce()
{
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_VolumeDown, {}, {}, true);
    QApplication::sendEvent(window(), &repeated);
    QVERIFY(m_answers.calls.isEmpty());
}

void TestClockAlarm::stopIsReachedByTab()
{
    QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Space);
    QCOMPARE(m_answers.calls, QStringList("dismiss 1"));
}

void TestClockAlarm::closingTheWindowSnoozes()
{
    QVERIFY(!window()->close());
    QVERIFY(window());
    QCOMPARE(m_answers.calls, QStringList("snooze 1 600"));
}

void TestClockAlarm::withoutASnoozeOnlyStopEndsIt()
{
    m_plugin->show(teaTime(1, 0));
    QTRY_COMPARE(m_answers.calls, QStringList("shown 1"));
    QVERIFY(!item("snooze")->isVisible());
    QTest::keyClick(window(), Qt::Key_Escape);
    QTest::keyClick(window(), Qt::Key_VolumeDown);
    QCOMPARE(m_answers.calls, QStringList("shown 1"));
    click("stop");
    QCOMPARE(m_answers.calls.last(), QString("dismiss 1"));
}

void TestClockAlarm::alarmsAreAnsweredInTheirOrder()
{
    m_plugin->show(teaTime(2, 300));
    m_plugin->show(teaTime(3));
    click("stop");
    QCOMPARE(m_answers.calls.last(), QString("dismiss 1"));
    m_plugin->hide(1);
    click("snooze");
    QCOMPARE(m_answers.calls.last(), QString("snooze 2 300"));
    m_plugin->hide(2);
    click("stop");
    QCOMPARE(m_answers.calls.last(), QString("dismiss 3"));
}

void TestClockAlarm::theKeyThatStoppedOneSnoozesTheNext()
{
    m_plugin->show(teaTime(2));
    QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Space);
    m_plugin->hide(1);
    QTest::keyClick(window(), Qt::Key_Space);
    QCOMPARE(m_answers.calls.last(), QString("snooze 2 600"));
}

void TestClockAlarm::theButtonsAreLargeAndFarApart()
{
    for (const auto size : {QSize(480, 854), QSize(360, 640), QSize(854, 480)}) {
        window()->resize(size);
        QTRY_COMPARE(window()->viewport()->size(), size);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const auto snooze = item("snooze")->sceneBoundingRect();
        const auto stop = item("stop")->sceneBoundingRect();
        QVERIFY(snooze.height() >= 88 && stop.height() >= 56);
        QVERIFY(stop.top() - snooze.bottom() >= 40);
        QVERIFY(QRectF(QPointF(), size).contains(stop) && QRectF(QPointF(), size).contains(snooze));
    }
}

QTEST_MAIN(TestClockAlarm)
#include "tst_clockalarm.moc"
