// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/clockwidgets/worldclock.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/list.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/look/mirror.h"
#include "tests/support/privatebus.h"

#include <QDir>
#include <QTest>

/** The main page and the editor in Arabic, from right to left. */
class TestMirroredClock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theMainPageLiesOnTheOtherSide();
    void theEditorLiesOnTheOtherSide();
    void theDialTurnsAsEver();
    void theHourStaysBeforeTheMinute();
    void cleanupTestCase();

private:
    void turn(Qt::LayoutDirection direction) const;
    bool keepPicture(const char *name) const;
    static QStringList closedClasses() { return {"TimePicker", "WorldClock", "Touch::TextEdit"}; }

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_page;
};

void TestMirroredClock::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "ar_EG.UTF-8");
    Touch::Locale::setDefault(Touch::Locale(QStringLiteral("ar_EG")));
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    Support::addAlarm(QTime(7, 30), QStringLiteral("العمل"), {1, 2});
    Support::addSwitchedOffAlarm(QTime(21, 5), QStringLiteral("Tea"));
}

void TestMirroredClock::init()
{
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_page = std::make_unique<MashupPage>();
    m_page->appear(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    auto *list = Support::itemIn<Touch::List>(m_page.get());
    QTRY_VERIFY(list->cellAt(1));
}

void TestMirroredClock::cleanup()
{
    SettingAlarmPage::instance()->dismiss();
    m_page.reset();
    m_window.reset();
}

void TestMirroredClock::cleanupTestCase()
{
    QVERIFY(Support::removeAllAlarms());
}

void TestMirroredClock::turn(Qt::LayoutDirection direction) const
{
    m_page->setLayoutDirection(direction);
    SettingAlarmPage::instance()->setLayoutDirection(direction);
    QCoreApplication::processEvents();
}

bool TestMirroredClock::keepPicture(const char *name) const
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    return QDir().mkpath(folder.path())
        && m_window->grab().save(folder.filePath(QStringLiteral("mirrored-%1.png").arg(QLatin1String(name))));
}

void TestMirroredClock::theMainPageLiesOnTheOtherSide()
{
    turn(Qt::LeftToRight);
    const auto plain = Support::placesIn(m_page.get(), closedClasses());
    QVERIFY(plain.size() > 8);
    turn(Qt::RightToLeft);
    const auto mirrored = Support::placesIn(m_page.get(), closedClasses());
    QVERIFY(keepPicture("main"));
    QCOMPARE(Support::notMirrored(plain, mirrored, m_window->width()).join('\n'), QString());
}

void TestMirroredClock::theEditorLiesOnTheOtherSide()
{
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    emit qobject_cast<AlarmListItem *>(Support::itemIn<Touch::List>(m_page.get())->cellAt(0))->clicked();
    QVERIFY(editor->isOnDisplay());
    // The time is read as ever; only its place is mirrored.
    auto closed = closedClasses();
    turn(Qt::LeftToRight);
    auto *row = Support::itemIn<Touch::Label>(editor, "ClockhhLabel")->parentItem();
    const auto isOfTheTime = [row](const Support::Placed &placed) {
        return row->sceneBoundingRect().contains(placed.rect.center()) && placed.what.startsWith("Touch::Label");
    };
    auto plain = Support::placesIn(editor, closed);
    plain.removeIf(isOfTheTime);
    turn(Qt::RightToLeft);
    auto mirrored = Support::placesIn(editor, closed);
    mirrored.removeIf(isOfTheTime);
    QVERIFY(keepPicture("editor"));
    QCOMPARE(Support::notMirrored(plain, mirrored, m_window->width()).join('\n'), QString());
}

void TestMirroredClock::theDialTurnsAsEver()
{
    TimePicker picker(3, 15, m_page->centralWidget());
    picker.resize(400, 400);
    turn(Qt::LeftToRight);
    const QPointF hour = picker.hourHandle();
    QVERIFY2(hour.x() > 200, "three o'clock is on the right");
    turn(Qt::RightToLeft);
    QCOMPARE(picker.hourHandle(), hour);
}

void TestMirroredClock::theHourStaysBeforeTheMinute()
{
    emit qobject_cast<AlarmListItem *>(Support::itemIn<Touch::List>(m_page.get())->cellAt(0))->clicked();
    turn(Qt::RightToLeft);
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    const auto left = [editor](const QString &name) {
        return Support::itemIn<Touch::Label>(editor, name)->sceneBoundingRect().left();
    };
    QVERIFY(left("ClockhhLabel") < left("ClockColonLabel"));
    QVERIFY(left("ClockColonLabel") < left("ClockmmLabel"));
}

QTEST_MAIN(TestMirroredClock)
#include "tst_mirroredclock.moc"
