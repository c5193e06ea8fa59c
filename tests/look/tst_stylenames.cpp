// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/worldclock.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/theme.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/look.h"

#include <QTemporaryFile>
#include <QTest>

using Touch::Theme;

/** Every name that the application gives its widgets is one that a theme can address. */
class TestStyleNames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyStyleHasItsEntry_data();
    void everyStyleHasItsEntry();
    void everyObjectHasItsEntry_data();
    void everyObjectHasItsEntry();
    void reachesAWidgetByEachOfItsNames_data();
    void reachesAWidgetByEachOfItsNames();
};

namespace {

const char *const styles[]
    = {"ClockWindow", "MainPage", "DropShadow", "ClockItemDivider", "ClockMainViewLayout",
       // the list of alarms
       "AlarmListWithSeparators", "CommonSpacer", "CommonXLargeSpacer", "CommonLargeGroupHeaderPanel",
       "CommonLargeHeader", "CommonSmallIconButton",
       // the editor
       "CommonApplicationPage", "TimePickerStyle", "CommonSingleInputField", "TimeLabel", "TimeLabelManipulated",
       "AMPMLabel", "CommonSingleButton", "CommonPanelNoFeedback", "AlarmEditorItemDivider", "CommonItemDivider",
       "CommonPanel", "ClockAlarmRepeatDay",
       // its options
       "MoreOptionsSheet", "CommonApplicationWindowInverted", "CommonApplicationHeader", "CommonSingleTitle",
       "CommonSubTitleTop", "CommonTitleBottom", "CommonDrillDownIcon", "CommonComboBoxIcon",
       // notices
       "FullEventBanner", "ShortEventBanner", "PrivateEventBanner", "InformationBanner", "LockScreenEventBanner",
       "SystemBanner", "GenericBanner"};

struct Named
{
    const char *styleName;
    const char *objectName;
};

const Named objects[] = {{"CommonLargeHeader", "AlarmsHeader"},
                         {"CommonSmallIconButton", "newAlarmButton"},
                         {"CommonSingleInputField", "AlarmNameInputField"},
                         {"TimeLabel", "ClockhhLabel"},
                         {"TimeLabelManipulated", "ClockhhLabel"},
                         {"TimeLabel", "ClockmmLabel"},
                         {"TimeLabelManipulated", "ClockmmLabel"},
                         {"AMPMLabel", "ClockampmLabel"},
                         {"CommonApplicationHeader", "AlarmOptionsHeader"},
                         {"CommonSingleTitle", "MoreOptionsTitle"},
                         {"CommonDrillDownIcon", "MoreOptionsIcon"},
                         {"CommonSubTitleTop", "AlarmOptionTitleLabel"},
                         {"CommonTitleBottom", "AlarmOptionSubTitle"},
                         {"CommonComboBoxIcon", "AlarmOptionsIcon"}};

void addObjects()
{
    QTest::addColumn<QString>("styleName");
    QTest::addColumn<QString>("objectName");
    for (const Named &named : objects)
        QTest::addRow("%s#%s", named.styleName, named.objectName)
            << QString::fromLatin1(named.styleName) << QString::fromLatin1(named.objectName);
}

QSizeF iconSizeOf(const QString &styleName, const QString &objectName)
{
    return Theme::instance().style(styleName, objectName, &Touch::Label::staticMetaObject)->iconSize;
}

/** Adds a rule that nothing else gives: an icon of this width. */
bool addRule(const QString &name, int width)
{
    QTemporaryFile file;
    if (!file.open())
        return false;
    file.write(QStringLiteral(R"({"styles": {"%1": {"iconSize": [%2, 1]}}})").arg(name).arg(width).toUtf8());
    file.close();
    QString error;
    return Theme::instance().load(file.fileName(), &error);
}

} // namespace

void TestStyleNames::initTestCase()
{
    QVERIFY(Support::loadLook());
    // The clock widgets bring their theme with the first of them.
    const WorldClock clock;
}

void TestStyleNames::everyStyleHasItsEntry_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : styles)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestStyleNames::everyStyleHasItsEntry()
{
    QFETCH(QString, name);
    QVERIFY(Theme::instance().hasStyle(name));
    const Support::LogCapture log;
    (void)Theme::instance().style(name, {}, &Touch::Label::staticMetaObject);
    QCOMPARE(log.lines(QtWarningMsg), QStringList());
}

void TestStyleNames::everyObjectHasItsEntry_data()
{
    addObjects();
}

void TestStyleNames::everyObjectHasItsEntry()
{
    QFETCH(QString, objectName);
    QVERIFY(Theme::instance().hasStyle(QLatin1Char('#') + objectName));
}

void TestStyleNames::reachesAWidgetByEachOfItsNames_data()
{
    addObjects();
}

void TestStyleNames::reachesAWidgetByEachOfItsNames()
{
    QFETCH(QString, styleName);
    QFETCH(QString, objectName);
    static int width = 100;
    QVERIFY(addRule(QLatin1Char('#') + objectName, ++width));
    QCOMPARE(iconSizeOf({}, objectName).width(), width);
    QVERIFY(addRule(styleName, ++width));
    QCOMPARE(iconSizeOf(styleName, {}).width(), width);
    QVERIFY(addRule(styleName + QLatin1Char('#') + objectName, ++width));
    QCOMPARE(iconSizeOf(styleName, objectName).width(), width);
    QCOMPARE(iconSizeOf(styleName, {}).width(), width - 1);
}

QTEST_MAIN(TestStyleNames)
#include "tst_stylenames.moc"
