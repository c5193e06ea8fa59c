// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/worldclock.h"

#include "platform/locale/locale.h"
#include "tests/clockwidgets/stage.h"

#include <QDir>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTimeZone>

using Touch::Locale;

namespace {

/// A clock that goes only when it is told to.
class FakeTicker : public ClockTicker
{
public:
    QDateTime now() const override { return time; }
    void start(Beat newBeat) override
    {
        running = true;
        beat = newBeat;
    }
    void stop() override { running = false; }
    void goOn(int seconds)
    {
        time = time.addSecs(seconds);
        if (running)
            Q_EMIT ticked();
    }

    QDateTime time{QDate(2026, 3, 9), QTime(10, 9, 30)};
    Beat beat = Beat::Minute;
    bool running = false;
};

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Astel/clockwidgets.ini";
}

struct Scene
{
    Scene()
        : ticker(new FakeTicker)
        , clock(new WorldClock(std::unique_ptr<ClockTicker>(ticker)))
        , stage(clock, {0, 0, 480, 324})
    { }

    FakeTicker *ticker;
    WorldClock *clock;
    Stage stage;
};

} // namespace

class TestWorldClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isReadWithoutBeingSeen();
    void ticksOnlyWhileDisplayed();
    void ticksNotInAMinimisedWindow();
    void showsTheTimeAtOnceWhenItComesBack();
    void ticksEverySecondOnlyWithTheSecondsHand();
    void aTapShowsTheOtherFace();
    void eachOfTwoQuickTapsCounts();
    void isSeenToBePressed();
    void keysShowTheOtherFace();
    void theFaceChosenIsRemembered();
    void whatWasNeverChosenIsAnalogue();
    void tellsTheZoneAndWhetherItIsSummer();
    void showsTheDateOfTheUsersCalendar();
    void anotherFaceLooksDifferent();
    void followsTheUsersLocale();
    void takesAboutTwoFifthsOfThePage();
    void inALowPlaceTheDateStandsBesideTheFace_data();
    void inALowPlaceTheDateStandsBesideTheFace();
};

void TestWorldClock::init()
{
    Locale::setDefault(Locale(u"en_US"_qs));
    QFile::remove(settingsFile());
}

void TestWorldClock::isReadWithoutBeingSeen()
{
    Scene scene;
    QAccessibleInterface *clock = QAccessible::queryAccessibleInterface(scene.clock);
    QCOMPARE(clock->role(), QAccessible::Button);
    const QString name = clock->text(QAccessible::Name).simplified();
    QVERIFY2(name.startsWith("10:09"), qPrintable(name));
    QVERIFY2(name.endsWith("Monday, March 9, Coordinated Universal Time"), qPrintable(name));
    clock->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(scene.clock->face(), WorldClock::Face::Digital);
}

void TestWorldClock::ticksOnlyWhileDisplayed()
{
    Scene scene;
    QVERIFY(!scene.ticker->running);
    QVERIFY(scene.stage.show());
    QVERIFY(scene.ticker->running);
    scene.ticker->goOn(1);
    QCOMPARE(scene.clock->shownTime(), scene.ticker->time);
    scene.clock->hide();
    QVERIFY(!scene.ticker->running);
    scene.clock->show();
    QVERIFY(scene.ticker->running);
    scene.stage.window.hide();
    QVERIFY(!scene.ticker->running);
}

void TestWorldClock::ticksNotInAMinimisedWindow()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.stage.window.showMinimized();
    QTRY_VERIFY(!scene.ticker->running);
    scene.stage.window.showNormal();
    QTRY_VERIFY(scene.ticker->running);
}

void TestWorldClock::showsTheTimeAtOnceWhenItComesBack()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.clock->hide();
    scene.ticker->goOn(3600);
    QVERIFY(scene.clock->shownTime() != scene.ticker->time);
    scene.clock->show();
    QCOMPARE(scene.clock->shownTime(), scene.ticker->time);
}

void TestWorldClock::ticksEverySecondOnlyWithTheSecondsHand()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    QCOMPARE(scene.ticker->beat, ClockTicker::Beat::Second);
    scene.clock->setFace(WorldClock::Face::Digital);
    QCOMPARE(scene.ticker->beat, ClockTicker::Beat::Minute);
    scene.clock->hide();
    scene.clock->setFace(WorldClock::Face::Analogue);
    QVERIFY(!scene.ticker->running);
}

void TestWorldClock::aTapShowsTheOtherFace()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    QSignalSpy spy(scene.clock, &WorldClock::faceChanged);
    scene.stage.tap({240, 150});
    QCOMPARE(scene.clock->face(), WorldClock::Face::Digital);
    scene.stage.tap({240, 150});
    QCOMPARE(scene.clock->face(), WorldClock::Face::Analogue);
    QCOMPARE(spy.count(), 2);
    // A finger that leaves the clock has changed its mind.
    scene.stage.press({240, 150});
    scene.stage.move({240, 400});
    scene.stage.release({240, 400});
    QCOMPARE(spy.count(), 2);
}

void TestWorldClock::eachOfTwoQuickTapsCounts()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    QSignalSpy spy(scene.clock, &WorldClock::faceChanged);
    scene.stage.doubleTap({240, 150});
    QCOMPARE(spy.count(), 2);
}

void TestWorldClock::isSeenToBePressed()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const QImage before = scene.stage.window.grab().toImage();
    scene.stage.press({240, 150});
    QVERIFY(scene.stage.window.grab().toImage() != before);
    scene.stage.move({240, 400});
    QCOMPARE(scene.stage.window.grab().toImage(), before);
    scene.stage.release({240, 400});
}

void TestWorldClock::keysShowTheOtherFace()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.stage.key(Qt::Key_Space);
    QCOMPARE(scene.clock->face(), WorldClock::Face::Digital);
    scene.stage.key(Qt::Key_Return);
    QCOMPARE(scene.clock->face(), WorldClock::Face::Analogue);
}

void TestWorldClock::theFaceChosenIsRemembered()
{
    {
        Scene scene;
        QVERIFY(scene.stage.show());
        scene.stage.tap({240, 150});
    }
    {
        Scene scene;
        QCOMPARE(scene.clock->face(), WorldClock::Face::Digital);
        QVERIFY(scene.stage.show());
        scene.stage.key(Qt::Key_Space);
    }
    QCOMPARE(WorldClock().face(), WorldClock::Face::Analogue);
}

void TestWorldClock::whatWasNeverChosenIsAnalogue()
{
    QCOMPARE(WorldClock().face(), WorldClock::Face::Analogue);
    // Only the user's choice is kept.
    WorldClock().setFace(WorldClock::Face::Digital);
    QCOMPARE(WorldClock().face(), WorldClock::Face::Analogue);
    QFile file(settingsFile());
    QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
    file.write("[WorldClock]\nface=sundial\n");
    file.close();
    QCOMPARE(WorldClock().face(), WorldClock::Face::Analogue);
}

void TestWorldClock::tellsTheZoneAndWhetherItIsSummer()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const QTimeZone berlin("Europe/Berlin");
    scene.ticker->time = QDateTime(QDate(2026, 3, 9), QTime(10, 9), berlin);
    scene.ticker->goOn(1);
    const QImage winter = scene.stage.window.grab().toImage();
    QVERIFY2(scene.clock->accessibleName().endsWith("Central European Standard Time"),
             qPrintable(scene.clock->accessibleName()));
    scene.ticker->time = QDateTime(QDate(2026, 7, 9), QTime(10, 9), berlin);
    scene.ticker->goOn(1);
    QVERIFY(scene.clock->accessibleName().endsWith("Central European Summer Time"));
    QVERIFY(scene.stage.window.grab().toImage() != winter);
}

void TestWorldClock::showsTheDateOfTheUsersCalendar()
{
    Scene scene;
    Locale::setDefault(Locale(u"en_US@calendar=hebrew"_qs));
    QVERIFY2(scene.clock->accessibleName().contains("Adar"), qPrintable(scene.clock->accessibleName()));
    Locale::setDefault(Locale(u"de_DE"_qs));
    QVERIFY(scene.clock->accessibleName().contains("9. März"));
}

void TestWorldClock::anotherFaceLooksDifferent()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const QImage analogue = scene.stage.window.grab().toImage();
    scene.ticker->goOn(1);
    QVERIFY(scene.stage.window.grab().toImage() != analogue);
    scene.clock->setFace(WorldClock::Face::Digital);
    const QImage digital = scene.stage.window.grab().toImage();
    QVERIFY(digital != analogue);
    // Within the minute nothing moves there.
    scene.ticker->goOn(1);
    QVERIFY(scene.stage.window.grab().toImage() == digital);
    scene.ticker->goOn(60);
    QVERIFY(scene.stage.window.grab().toImage() != digital);
}

void TestWorldClock::followsTheUsersLocale()
{
    Scene scene;
    scene.ticker->goOn(6 * 3600);
    scene.clock->setFace(WorldClock::Face::Digital);
    QVERIFY(scene.stage.show());
    const QImage twelve = scene.stage.window.grab().toImage();
    Locale::getDefault().setTimeFormat24h(Locale::TwentyFourHour);
    const QImage twentyFour = scene.stage.window.grab().toImage();
    QVERIFY(twentyFour != twelve);
    Locale::setDefault(Locale(u"ar_EG"_qs));
    QVERIFY(scene.stage.window.grab().toImage() != twentyFour);
}

void TestWorldClock::takesAboutTwoFifthsOfThePage()
{
    const WorldClock clock;
    const qreal part = clock.preferredHeight() / 854;
    QVERIFY2(part >= 0.36 && part <= 0.40, qPrintable(QString::number(part)));
}

void TestWorldClock::inALowPlaceTheDateStandsBesideTheFace_data()
{
    QTest::addColumn<WorldClock::Face>("face");
    QTest::newRow("analogue") << WorldClock::Face::Analogue;
    QTest::newRow("digital") << WorldClock::Face::Digital;
}

void TestWorldClock::inALowPlaceTheDateStandsBesideTheFace()
{
    QFETCH(WorldClock::Face, face);
    Scene scene;
    scene.clock->setFace(face);
    scene.clock->setGeometry(QRectF(0, 0, 480, 136));
    QVERIFY(scene.stage.show());
    const QImage picture = scene.stage.window.grab().toImage();
    QRect inked;
    QRect inkedAtLeft;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == picture.pixel(0, 0))
                continue;
            inked |= QRect(x, y, 1, 1);
            if (x < 200)
                inkedAtLeft |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(QRect(0, 0, 480, 136).contains(inked));
    // A face that can be read, and all of the width that the date takes beside it.
    const int least = face == WorldClock::Face::Analogue ? 90 : 40;
    QVERIFY2(inkedAtLeft.height() >= least, qPrintable(QString::number(inkedAtLeft.height())));
    QVERIFY2(inked.width() >= 250, qPrintable(QString::number(inked.width())));
}

QTEST_MAIN(TestWorldClock)
#include "tst_worldclock.moc"
