// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/clockticker.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/clockwidgets/worldclock.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/theme.h"
#include "tests/clockwidgets/stage.h"

#include <QDir>
#include <QGraphicsLinearLayout>
#include <QTest>

using Touch::Locale;
using Touch::Theme;

namespace {

class StandingClock : public ClockTicker
{
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 3, 9), QTime(10, 9, 36)); }
    void start(Beat) override { }
    void stop() override { }
};

AlarmListItem *row(QTime time, const QString &title, const QString &repeat, bool enabled)
{
    auto *item = new AlarmListItem(repeat.isEmpty() ? AlarmListItem::OneLine : AlarmListItem::WithRepeatLine);
    item->setTitle(time);
    item->setSubTitle(title);
    item->setSubText(repeat);
    item->setEnabled(enabled);
    return item;
}

} // namespace

/// Pictures of every widget, for people to look at: in the folder screenshots of the build.
class TestLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockAndAlarms_data();
    void clockAndAlarms();
    void picker_data();
    void picker();

private:
    void addLooks();
    void prepare(Touch::Window &window);
    QImage take(Touch::Window &window, const QString &name);
};

void TestLooks::addLooks()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<QString>("locale");
    QTest::newRow("dark") << Theme::Variant::Dark << "en_GB";
    QTest::newRow("light") << Theme::Variant::Light << "en_US";
    QTest::newRow("dark-arabic") << Theme::Variant::Dark << "ar_EG";
    QTest::newRow("light-hebrew") << Theme::Variant::Light << "he_IL";
    // The half of the day before the digits.
    QTest::newRow("light-turkish") << Theme::Variant::Light << "tr_TR";
}

void TestLooks::prepare(Touch::Window &window)
{
    QFETCH(Theme::Variant, variant);
    QFETCH(QString, locale);
    Theme::instance().setVariant(variant);
    Locale user(locale);
    if (locale == u"tr_TR")
        user.setTimeFormat24h(Locale::TwelveHour);
    Locale::setDefault(user);
    QApplication::setLayoutDirection(Locale::getDefault().textDirection());
    window.resize(480, 854);
    window.setSceneRect(0, 0, 480, 854);
}

QImage TestLooks::take(Touch::Window &window, const QString &name)
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QDir().mkpath(folder.path());
    const QImage image = window.grab().toImage();
    const QString file = QStringLiteral("clockwidgets-%1-%2.png").arg(name, QTest::currentDataTag());
    return image.save(folder.filePath(file)) ? image : QImage();
}

void TestLooks::clockAndAlarms_data()
{
    addLooks();
}

void TestLooks::clockAndAlarms()
{
    Touch::Window window;
    prepare(window);
    auto *page = new QGraphicsWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *analogue = new WorldClock(std::make_unique<StandingClock>());
    auto *digital = new WorldClock(std::make_unique<StandingClock>());
    digital->setFace(WorldClock::Face::Digital);
    digital->setMaximumHeight(220);
    layout->addItem(analogue);
    layout->addItem(digital);
    layout->addItem(row(QTime(7, 30), "Work", "Mon, Tue, Wed, Thu, Fri", true));
    layout->addItem(row(QTime(12, 0), "A title that is much too long for its row", "Every day", false));
    layout->addItem(row(QTime(22, 45), "Pick up the children", "", true));
    window.scene()->addItem(page);
    page->setGeometry(0, 0, 480, 854);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QImage image = take(window, "clock");
    QVERIFY(!image.isNull());
}

void TestLooks::picker_data()
{
    addLooks();
}

void TestLooks::picker()
{
    Touch::Window window;
    prepare(window);
    auto *morning = new TimePicker(7, 20);
    window.scene()->addItem(morning);
    morning->setGeometry(40, 10, 400, 400);
    auto *evening = new TimePicker(22, 5);
    window.scene()->addItem(evening);
    evening->setGeometry(60, 440, 360, 360);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QImage without = window.grab().toImage();
    evening->setFocus(Qt::TabFocusReason);
    QVERIFY(window.grab().toImage() != without);
    QVERIFY(!take(window, "picker").isNull());
}

QTEST_MAIN(TestLooks)
#include "tst_looks.moc"
