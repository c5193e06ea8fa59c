// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainview/mashuppage.h"

#include "alarmlist/alarmswidget.h"
#include "alarmlist/notices/informationbanner.h"
#include "platform/clockwidgets/worldclock.h"
#include "platform/locale/locale.h"
#include "platform/timedclient/wire.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/theme.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QTemporaryFile>
#include <QTest>

using Touch::ApplicationPage;

class TestMashupPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aNewPageHasNoContentAndNoChrome();
    void itsCataloguesAreInstalledSoundsAfterCountries();
    void theDefaultLocaleBecomesThatOfTheSystem();
    void contentIsCreatedOnceWhenItAppears();
    void eachArrangementHoldsItsItemsWithoutMargins();
    void theAlarmsTakeTheRoomThatIsLeft();
    void inPortraitTheClockStandsAboveTheAlarms();
    void theDividerFollowsTheWidth();
    void theShadowFadesDownwards();
    void aLongListLeavesTheClockItsSize();
    void aLowWindowHasRoomForAlarms_data();
    void aLowWindowHasRoomForAlarms();
    void inLandscapeTheClockStandsBesideTheAlarms();
    void resettingResetsTheAlarmList();
    void everySettingsChangeReadsTheAlarmsOnce();
    void theSlotKeepsItsSignature();
    void onlyThePortraitsSpacingIsTheStyles();
    void theBannerEndsWithThePage();

private:
    Touch::Widget *separator(const QString &styleName) const;

    Support::PrivateBus m_bus;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<MashupPage> m_page;
};

void TestMashupPage::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    // Stands in for the daemon: its name must have an owner for its signal to be heard.
    QVERIFY(QDBusConnection::sessionBus().registerService(Astel::Timed::Wire::Service));
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->resize(480, 854);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestMashupPage::init()
{
    m_page = std::make_unique<MashupPage>();
}

Touch::Widget *TestMashupPage::separator(const QString &styleName) const
{
    const auto widgets = m_page->centralWidget()->childItems();
    for (QGraphicsItem *item : widgets) {
        auto *widget = qobject_cast<Touch::Widget *>(item->toGraphicsObject());
        if (widget && widget->styleName() == styleName)
            return widget;
    }
    return nullptr;
}

void TestMashupPage::aNewPageHasNoContentAndNoChrome()
{
    QCOMPARE(m_page->title(), "qtn_cloc_title");
    QCOMPARE(m_page->styleName(), "MainPage");
    QVERIFY(!m_page->isPannable());
    QVERIFY(!m_page->parentItem());
    QVERIFY(!m_page->isContentCreated());
    QVERIFY(!Support::itemIn<WorldClock>(m_page.get()));
    for (const auto component :
         {ApplicationPage::HomeButton, ApplicationPage::EscapeButton, ApplicationPage::NavigationBar})
        QCOMPARE(m_page->componentDisplayMode(component), ApplicationPage::Hide);
}

// Before any other page appears: catalogues stay.
void TestMashupPage::itsCataloguesAreInstalledSoundsAfterCountries()
{
    QCOMPARE(qtTrId("test_countries"), "test_countries");
    m_page->appear(m_window.get());
    QCOMPARE(qtTrId("test_countries"), "from countries");
    QCOMPARE(qtTrId("test_sounds"), "from sounds");
    QCOMPARE(qtTrId("test_both"), "sounds first");
}

void TestMashupPage::theDefaultLocaleBecomesThatOfTheSystem()
{
    const Touch::Locale system;
    const Touch::Locale other(system.language() == "fi" ? QStringLiteral("de") : QStringLiteral("fi"));
    Touch::Locale::setDefault(other);
    QCOMPARE(Touch::Locale::getDefault().language(), other.language());
    m_page->appear(m_window.get());
    QCOMPARE(Touch::Locale::getDefault().language(), system.language());
}

void TestMashupPage::contentIsCreatedOnceWhenItAppears()
{
    m_page->appear(m_window.get());
    QVERIFY(m_page->isContentCreated());
    m_page->disappear();
    m_page->appear(m_window.get());
    QCOMPARE(Support::countIn<WorldClock>(m_page.get()), 1);
    QCOMPARE(Support::countIn<AlarmsWidget>(m_page.get()), 1);
}

void TestMashupPage::eachArrangementHoldsItsItemsWithoutMargins()
{
    m_page->appear(m_window.get());
    using Items = QList<QGraphicsLayoutItem *>;
    auto *clock = Support::itemIn<WorldClock>(m_page.get());
    auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    const auto *layout = static_cast<Touch::Layout *>(m_page->centralWidget()->layout());
    const Touch::AbstractLayoutPolicy *landscape = layout->landscapePolicy();
    const Touch::AbstractLayoutPolicy *portrait = layout->portraitPolicy();
    QCOMPARE(landscape->items(), (Items{clock, viewport}));
    QCOMPARE(portrait->items(), (Items{clock, separator("DropShadow"), separator("ClockItemDivider"), viewport}));
    for (const Touch::AbstractLayoutPolicy *policy : {landscape, portrait}) {
        QVERIFY(dynamic_cast<const Touch::LinearLayoutPolicy *>(policy));
        QCOMPARE(policy->styleName(), "ClockMainViewLayout");
        QCOMPARE(policy->contentsMargins(), QMarginsF());
    }
    QCOMPARE(landscape->spacing(), 0.0);
    QCOMPARE(clock->parentItem(), m_page->centralWidget());
}

void TestMashupPage::theAlarmsTakeTheRoomThatIsLeft()
{
    m_page->appear(m_window.get());
    const auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    auto *alarms = Support::itemIn<AlarmsWidget>(m_page.get());
    QCOMPARE(viewport->widget(), alarms);
    QCOMPARE(alarms->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(separator("ClockItemDivider")->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void TestMashupPage::inPortraitTheClockStandsAboveTheAlarms()
{
    m_window->setOrientation(Qt::Vertical);
    m_page->appear(m_window.get());
    const auto *clock = Support::itemIn<WorldClock>(m_page.get());
    const auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    const auto *shadow = separator("DropShadow");
    const auto *divider = separator("ClockItemDivider");
    QVERIFY(clock && viewport && shadow && divider);
    QTRY_COMPARE(viewport->geometry().bottom(), m_page->centralWidget()->size().height());
    QCOMPARE(clock->geometry().topLeft(), QPointF(0, 0));
    QVERIFY(shadow->isVisible() && divider->isVisible());
    QVERIFY(clock->geometry().bottom() <= shadow->geometry().top());
    QVERIFY(shadow->geometry().bottom() <= divider->geometry().top());
    QVERIFY(divider->geometry().bottom() <= viewport->geometry().top());
    QCOMPARE(viewport->geometry().left(), 0.0);
    QCOMPARE(viewport->size().width(), m_page->centralWidget()->size().width());
}

void TestMashupPage::theDividerFollowsTheWidth()
{
    m_page->appear(m_window.get());
    const auto *divider = separator("ClockItemDivider");
    for (const int width : {480, 600, 400}) {
        m_window->resize(width, 854);
        QTRY_COMPARE(divider->geometry(), QRectF(20, divider->y(), width - 40, 1));
    }
    m_window->resize(480, 854);
}

void TestMashupPage::theShadowFadesDownwards()
{
    m_page->appear(m_window.get());
    auto *shadow = separator("DropShadow");
    QTRY_COMPARE(shadow->size().height(), 8.0);
    QImage picture(shadow->size().toSize(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    shadow->paint(&painter, nullptr);
    painter.end();
    QCOMPARE(picture.pixelColor(100, 0), shadow->style().separatorColor);
    for (int y = 1; y < picture.height(); ++y)
        QVERIFY(qAlpha(picture.pixel(100, y)) < qAlpha(picture.pixel(100, y - 1)));
}

void TestMashupPage::aLongListLeavesTheClockItsSize()
{
    m_page->appear(m_window.get());
    const auto *clock = Support::itemIn<WorldClock>(m_page.get());
    const auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    auto *alarms = Support::itemIn<AlarmsWidget>(m_page.get());
    QTRY_VERIFY(viewport->size().height() > 0);
    const QSizeF size = clock->size();
    alarms->setPreferredHeight(5000);
    QTRY_VERIFY(viewport->range().y() > 0 || alarms->size().height() >= 5000);
    QCOMPARE(clock->size(), size);
}

void TestMashupPage::aLowWindowHasRoomForAlarms_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(360, 640), QSize(854, 480), QSize(640, 360), QSize(900, 300)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void TestMashupPage::aLowWindowHasRoomForAlarms()
{
    QFETCH(const QSize, size);
    const QSize usual = m_window->size();
    // As start-up has it.
    m_window->setOrientationLocked(true);
    m_page->appear(m_window.get());
    m_window->resize(size);
    const auto *clock = Support::itemIn<WorldClock>(m_page.get());
    const auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    QTRY_COMPARE(m_page->size(), QSizeF(size));
    QTRY_VERIFY2(viewport->size().height() >= size.height() / 2, "the clock takes too much");
    QVERIFY(clock->size().height() >= 116);
    QCOMPARE(viewport->mapRectToScene(viewport->rect()).bottom(), qreal(size.height()));
    m_window->resize(usual);
    m_window->setOrientationLocked(false);
}

void TestMashupPage::inLandscapeTheClockStandsBesideTheAlarms()
{
    m_page->appear(m_window.get());
    m_window->setOrientation(Qt::Horizontal);
    const auto *clock = Support::itemIn<WorldClock>(m_page.get());
    const auto *viewport = Support::itemIn<Touch::PannableViewport>(m_page.get());
    QTRY_COMPARE(viewport->geometry().left(), clock->geometry().right());
    QVERIFY(!separator("DropShadow")->isVisible());
    QVERIFY(!separator("ClockItemDivider")->isVisible());
    m_window->setOrientation(Qt::Vertical);
    QTRY_VERIFY(separator("DropShadow")->isVisible());
}

void TestMashupPage::resettingResetsTheAlarmList()
{
    m_page->appear(m_window.get());
    const Support::LogCapture log;
    m_page->resetContent();
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.value(0), "void MashupPage::resetContent()");
    QCOMPARE(lines.value(1), "void AlarmsWidget::resetContent()");
    QCOMPARE(lines.value(2), "void AlarmsWidget::updateContent() entered");
}

void TestMashupPage::everySettingsChangeReadsTheAlarmsOnce()
{
    m_page->appear(m_window.get());
    const Support::LogCapture log;
    for (int count = 1; count <= 2; ++count) {
        auto changed
            = QDBusMessage::createSignal(Astel::Timed::Wire::Path, Astel::Timed::Wire::Interface, "settings_changed");
        changed << QVariant::fromValue(Astel::Timed::WallClock::Info{"Europe/Berlin", 3600, false}) << (count == 1);
        QVERIFY(QDBusConnection::sessionBus().send(changed));
        QTRY_COMPARE(log.lines().filter("AlarmsWidget::updateContent() entered").size(), count);
    }
}

void TestMashupPage::theSlotKeepsItsSignature()
{
    const QMetaObject &meta = MashupPage::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), "timeChanged(Astel::Timed::WallClock::Info,bool)");
    QCOMPARE(slot.parameterNames().value(1), "timechanged");
}

// Late, as a theme file stays.
void TestMashupPage::onlyThePortraitsSpacingIsTheStyles()
{
    m_page->appear(m_window.get());
    QTemporaryFile theme;
    QVERIFY(theme.open());
    theme.write(R"({ "styles": { "ClockMainViewLayout": { "spacing": 12, "padding": [1, 2, 3, 4] } } })");
    theme.close();
    QString error;
    QVERIFY2(Touch::Theme::instance().load(theme.fileName(), &error), qPrintable(error));
    const auto *layout = static_cast<Touch::Layout *>(m_page->centralWidget()->layout());
    QCOMPARE(layout->portraitPolicy()->spacing(), 12.0);
    QCOMPARE(layout->landscapePolicy()->spacing(), 0.0);
    QCOMPARE(layout->portraitPolicy()->contentsMargins(), QMarginsF());
    QCOMPARE(layout->landscapePolicy()->contentsMargins(), QMarginsF());
}

// Last, as no page may end after it.
void TestMashupPage::theBannerEndsWithThePage()
{
    m_page->appear(m_window.get());
    showInformationBanner("Soon");
    QPointer<Touch::Banner> banner;
    const auto sceneWindows = m_window->sceneWindows();
    for (Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (auto *found = qobject_cast<Touch::Banner *>(sceneWindow))
            banner = found;
    }
    QVERIFY(banner && banner->isOnDisplay());
    m_page.reset();
    QVERIFY(!banner);
}

QTEST_MAIN(TestMashupPage)
#include "tst_mashuppage.moc"
