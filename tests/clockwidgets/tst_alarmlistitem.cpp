// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alarmlistitem.h"

#include "platform/locale/locale.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/theme.h"
#include "tests/clockwidgets/stage.h"

#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>

#include <algorithm>

using Touch::Locale;

namespace {

const QPointF onTheRow(150, 44);

struct Scene
{
    Scene()
        : item(new AlarmListItem(AlarmListItem::OneLine))
        , stage(item, {0, 100, 480, 88})
        , clicks(item, &AlarmListItem::clicked)
        , flips(item, &AlarmListItem::alarmStateChanged)
    {
        item->setTitle(QTime(7, 30));
        item->setSubTitle("Work");
    }

    QPointF onTheSwitch() const
    {
        const auto children = item->childItems();
        return children.constFirst()->mapToParent(children.constFirst()->boundingRect().center());
    }
    QImage picture() { return stage.window.grab().toImage(); }

    AlarmListItem *item;
    Stage stage;
    QSignalSpy clicks;
    QSignalSpy flips;
};

} // namespace

class TestAlarmListItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsWhatItIsTold();
    void isMadeInTheStyleAskedFor();
    void aTapOnTheRowIsAClick();
    void aFingerThatLeavesTheRowIsNoClick();
    void aTouchTakenOverIsNoClick();
    void aTapOnTheSwitchIsAFlipAndNoClick();
    void settingTheStateIsNoFlip();
    void keysOpenAndFlip();
    void showsEveryPropertyAsARecycledCell();
    void hidesTheRepeatLineInTheOneLineStyle();
    void aLongTitleEndsBeforeTheSwitch();
    void showsTheLastOfManyDays();
    void tellsThatTheRepeatTextIsCutOff();
    void largeTextsStandTogetherInTheMiddle();
    void theRepeatTextFollowsTheSizeOfText();
    void theSwitchFollowsTheSizeOfText();
    void showsNothingForAnInvalidTime();
    void followsTheTimeFormat();
    void standsTheOtherWayRoundFromRightToLeft();
    void isAsHighAsAFingerNeeds();
    void hasASwitchForFingers();
    void isReadAndOpenedWithoutBeingSeen();
    void onlyAFlipIsSeenToSlide();
};

void TestAlarmListItem::init()
{
    Locale::setDefault(Locale(u"en_US"_qs));
}

void TestAlarmListItem::keepsWhatItIsTold()
{
    AlarmListItem item(AlarmListItem::OneLine);
    item.setAlarmCookie(4294967295);
    item.setTitle(QTime(7, 30));
    item.setSubTitle("Work");
    item.setSubText("Every day");
    item.setAlarmTone("/tones/birds.aac");
    item.setEnabled(true);
    item.setSnoozeValue(255);
    QCOMPARE(item.alarmCookie(), 4294967295);
    QCOMPARE(item.title(), QTime(7, 30));
    QCOMPARE(item.subTitle(), u"Work"_qs);
    QCOMPARE(item.subText(), u"Every day"_qs);
    QCOMPARE(item.alarmTone(), u"/tones/birds.aac"_qs);
    QVERIFY(item.enabled());
    QCOMPARE(item.snoozeValue(), uchar(255));
    item.setEnabled(false);
    QVERIFY(!item.enabled());
}

void TestAlarmListItem::isMadeInTheStyleAskedFor()
{
    QCOMPARE(int(AlarmListItem::OneLine), 0);
    QCOMPARE(int(AlarmListItem::WithRepeatLine), 1);
    QCOMPARE(AlarmListItem(AlarmListItem::WithRepeatLine).itemStyle(), AlarmListItem::WithRepeatLine);
    AlarmListItem item(AlarmListItem::OneLine, nullptr);
    QCOMPARE(item.itemStyle(), AlarmListItem::OneLine);
    QVERIFY(!item.enabled());
}

void TestAlarmListItem::aTapOnTheRowIsAClick()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const QImage atRest = scene.picture();
    scene.stage.press(onTheRow);
    QCOMPARE(scene.clicks.count(), 0);
    QVERIFY(scene.picture() != atRest);
    scene.stage.release(onTheRow);
    QCOMPARE(scene.clicks.count(), 1);
    QVERIFY(scene.picture() == atRest);
    // A switched-off alarm is opened as well.
    scene.item->setEnabled(false);
    scene.stage.tap(onTheRow);
    QCOMPARE(scene.clicks.count(), 2);
    QCOMPARE(scene.flips.count(), 0);
}

void TestAlarmListItem::aFingerThatLeavesTheRowIsNoClick()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.stage.press(onTheRow);
    scene.stage.move(onTheRow + QPointF(0, 80));
    scene.stage.release(onTheRow + QPointF(0, 80));
    QCOMPARE(scene.clicks.count(), 0);
}

void TestAlarmListItem::aTouchTakenOverIsNoClick()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.stage.press(onTheRow);
    scene.item->ungrabMouse();
    scene.stage.release(onTheRow);
    QCOMPARE(scene.clicks.count(), 0);
}

void TestAlarmListItem::aTapOnTheSwitchIsAFlipAndNoClick()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    bool enabledInSlot = false;
    connect(scene.item, &AlarmListItem::alarmStateChanged, this, [&] { enabledInSlot = scene.item->enabled(); });
    scene.stage.tap(scene.onTheSwitch());
    QCOMPARE(scene.flips.count(), 1);
    QVERIFY(enabledInSlot);
    scene.stage.tap(scene.onTheSwitch());
    QCOMPARE(scene.flips.count(), 2);
    QVERIFY(!enabledInSlot);
    QCOMPARE(scene.clicks.count(), 0);
}

void TestAlarmListItem::settingTheStateIsNoFlip()
{
    Scene scene;
    scene.item->setEnabled(true);
    scene.item->setEnabled(false);
    QCOMPARE(scene.flips.count(), 0);
}

void TestAlarmListItem::keysOpenAndFlip()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    scene.stage.key(Qt::Key_Return);
    QCOMPARE(scene.clicks.count(), 1);
    QTest::keyClick(&scene.stage.window, Qt::Key_Tab);
    QTest::keyClick(&scene.stage.window, Qt::Key_Space);
    QCOMPARE(scene.flips.count(), 1);
    QCOMPARE(scene.clicks.count(), 1);
}

void TestAlarmListItem::showsEveryPropertyAsARecycledCell()
{
    Scene scene;
    scene.item->setItemStyle(AlarmListItem::WithRepeatLine);
    QVERIFY(scene.stage.show());
    QImage before = scene.picture();
    const auto changed = [&] {
        const QImage after = scene.picture();
        return std::exchange(before, after) != after;
    };
    scene.item->setTitle(QTime(8, 30));
    QVERIFY(changed());
    scene.item->setSubTitle("Other");
    QVERIFY(changed());
    scene.item->setSubText("Every day");
    QVERIFY(changed());
    scene.item->setItemStyle(AlarmListItem::OneLine);
    QVERIFY(changed());
    scene.item->setEnabled(true);
    QVERIFY(changed());
    scene.item->setAlarmCookie(7);
    scene.item->setAlarmTone("tone");
    scene.item->setSnoozeValue(7);
    QCOMPARE(scene.flips.count() + scene.clicks.count(), 0);
}

void TestAlarmListItem::hidesTheRepeatLineInTheOneLineStyle()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const QImage without = scene.picture();
    scene.item->setSubText("Every day");
    QVERIFY(scene.picture() == without);
}

void TestAlarmListItem::aLongTitleEndsBeforeTheSwitch()
{
    Scene scene;
    scene.item->setSubTitle(QString());
    QVERIFY(scene.stage.show());
    const QImage without = scene.picture();
    const auto rightEdge = [&](const QString &title) {
        scene.item->setSubTitle(title);
        const QImage with = scene.picture();
        int edge = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = edge + 1; x < with.width(); ++x) {
                if (with.pixel(x, y) != without.pixel(x, y))
                    edge = x;
            }
        }
        return edge;
    };
    const int shortTitle = rightEdge("Work");
    const int longTitle = rightEdge(QString("Work and more work ").repeated(20));
    const QGraphicsItem *toggle = scene.item->childItems().constFirst();
    const int switchLeft = int(toggle->mapToScene(toggle->boundingRect().topLeft()).x());
    QVERIFY(longTitle > shortTitle);
    QVERIFY2(longTitle < switchLeft, qPrintable(QString("%1 reaches into %2").arg(longTitle).arg(switchLeft)));
    // It is cut at a word's letter, with a mark: another long end looks the same.
    const QImage cut = scene.picture();
    scene.item->setSubTitle(QString("Work and more work ").repeated(20) + "tomorrow");
    QVERIFY(scene.picture() == cut);
}

void TestAlarmListItem::showsTheLastOfManyDays()
{
    Scene scene;
    scene.item->setItemStyle(AlarmListItem::WithRepeatLine);
    scene.item->setGeometry(0, 100, 360, 88);
    scene.item->setSubText("Mon, Tue, Wed, Thu, Fri, Sat");
    QVERIFY(scene.stage.show());
    QVERIFY(scene.item->showsWholeSubText());
    const QImage saturday = scene.picture();
    scene.item->setSubText("Mon, Tue, Wed, Thu, Fri, Sun");
    QVERIFY(scene.picture() != saturday);
}

void TestAlarmListItem::tellsThatTheRepeatTextIsCutOff()
{
    Scene scene;
    scene.item->setItemStyle(AlarmListItem::WithRepeatLine);
    scene.item->setGeometry(0, 100, 360, 88);
    scene.item->setSubText(QStringLiteral("Wednesday, ").repeated(20));
    QVERIFY(!scene.item->showsWholeSubText());
}

void TestAlarmListItem::largeTextsStandTogetherInTheMiddle()
{
    Touch::Theme::instance().setTextScale(2);
    const auto restore = qScopeGuard([] { Touch::Theme::instance().setTextScale(1); });
    Scene scene;
    scene.item->setGeometry(0, 100, 480, 200);
    QVERIFY(scene.stage.show());
    const QImage picture = scene.picture();
    const QRgb background = picture.pixel(2, 102);
    QList<int> inked; // lines of pixels, of the texts alone
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300 && (inked.isEmpty() || inked.constLast() != y); ++x) {
            if (picture.pixel(x, 100 + y) != background)
                inked += y;
        }
    }
    QVERIFY(inked.size() > 40);
    const int above = inked.first();
    const int below = 199 - inked.last();
    QVERIFY2(qAbs(above - below) <= 8, qPrintable(QStringLiteral("%1 above, %2 below").arg(above).arg(below)));
    QVERIFY2(inked.last() - inked.first() < 100, "the title hangs below the time");
}

void TestAlarmListItem::theRepeatTextFollowsTheSizeOfText()
{
    Scene scene;
    scene.item->setItemStyle(AlarmListItem::WithRepeatLine);
    scene.item->setSubText("Mon, Tue, Wed");
    scene.item->setGeometry(0, 100, 480, scene.item->effectiveSizeHint(Qt::PreferredSize).height());
    const int usual = scene.item->subTextPixelSize();
    Touch::Theme::instance().setTextScale(2);
    const auto restore = qScopeGuard([] { Touch::Theme::instance().setTextScale(1); });
    scene.item->setGeometry(0, 100, 360, scene.item->effectiveSizeHint(Qt::PreferredSize).height());
    scene.item->setSubText("Mon, Tue, Wed, Thu, Fri, Sat");
    QCOMPARE(scene.item->subTextPixelSize(), 2 * usual);
    QVERIFY(scene.item->showsWholeSubText());
    // What is longer than the room for it becomes smaller, but not as small as it was.
    scene.item->setSubText("Monday, Tuesday, Wednesday, Thursday, Friday, Saturday");
    QVERIFY(scene.item->subTextPixelSize() >= 1.5 * usual);
}

void TestAlarmListItem::theSwitchFollowsTheSizeOfText()
{
    const Scene scene;
    const QGraphicsItem *toggle = scene.item->childItems().constFirst();
    const QRectF usual = toggle->boundingRect();
    Touch::Theme::instance().setTextScale(2);
    const auto restore = qScopeGuard([] { Touch::Theme::instance().setTextScale(1); });
    scene.item->resize(360, scene.item->effectiveSizeHint(Qt::PreferredSize).height());
    const QRectF large = toggle->boundingRect();
    QVERIFY(large.width() > 1.3 * usual.width() && large.height() > 1.3 * usual.height());
    QVERIFY(scene.item->rect().contains(toggle->mapRectToParent(large)));
}

void TestAlarmListItem::showsNothingForAnInvalidTime()
{
    Scene scene;
    scene.item->setTitle(QTime());
    QVERIFY(scene.stage.show());
    const QImage picture = scene.picture();
    const QRgb background = picture.pixel(2, 102);
    for (int x = 0; x < 100; ++x)
        QCOMPARE(picture.pixel(x, 144), background);
}

void TestAlarmListItem::followsTheTimeFormat()
{
    Scene scene;
    scene.item->setTitle(QTime(19, 30));
    QVERIFY(scene.stage.show());
    const QImage twelve = scene.picture();
    Locale::getDefault().setTimeFormat24h(Locale::TwentyFourHour);
    QVERIFY(scene.picture() != twelve);
}

void TestAlarmListItem::standsTheOtherWayRoundFromRightToLeft()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    QVERIFY(scene.onTheSwitch().x() > 400);
    scene.item->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(scene.onTheSwitch().x() < 80);
    scene.stage.tap(scene.onTheSwitch());
    QCOMPARE(scene.flips.count(), 1);
}

void TestAlarmListItem::isAsHighAsAFingerNeeds()
{
    const AlarmListItem item(AlarmListItem::OneLine);
    QVERIFY(item.preferredHeight() >= 80 && item.preferredHeight() <= 88);
}

void TestAlarmListItem::hasASwitchForFingers()
{
    const AlarmListItem item(AlarmListItem::OneLine);
    const QGraphicsItem *toggle = item.childItems().constFirst();
    QVERIFY(toggle->boundingRect().width() >= 52);
    QVERIFY(toggle->boundingRect().height() >= 48);
}

void TestAlarmListItem::isReadAndOpenedWithoutBeingSeen()
{
    Scene scene;
    scene.item->setSubText("Mon, Tue");
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(scene.item);
    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(row->text(QAccessible::Name).simplified(), "7:30 AM, Work, Mon, Tue");
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(scene.clicks.size(), 1);

    QCOMPARE(row->childCount(), 1);
    QAccessibleInterface *toggle = row->child(0);
    QCOMPARE(toggle->role(), QAccessible::CheckBox);
    QCOMPARE(toggle->text(QAccessible::Name), row->text(QAccessible::Name));
    toggle->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(scene.flips.size(), 1);
    QVERIFY(toggle->state().checked);
}

void TestAlarmListItem::onlyAFlipIsSeenToSlide()
{
    Scene scene;
    QVERIFY(scene.stage.show());
    const auto isSliding = [&scene] {
        const QGraphicsItem *toggle = scene.item->childItems().constFirst();
        const auto animations = toggle->toGraphicsObject()->findChildren<QVariantAnimation *>();
        return std::any_of(animations.begin(), animations.end(),
                           [](const auto *animation) { return animation->state() == QAbstractAnimation::Running; });
    };
    scene.item->setEnabled(true);
    QVERIFY(!isSliding());
    scene.stage.tap(scene.onTheSwitch());
    QVERIFY(isSliding());
    scene.item->setEnabled(false);
    QVERIFY2(isSliding(), "it is off already");
}

QTEST_MAIN(TestAlarmListItem)
#include "tst_alarmlistitem.moc"
