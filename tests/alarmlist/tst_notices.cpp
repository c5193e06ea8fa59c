// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/notices/informationbanner.h"
#include "alarmlist/notices/spacers.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/separator.h"
#include "tests/support/look/look.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

class TestNotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hidingBeforeTheFirstNoticeDoesNothing();
    void aNoticeShowsItsTextOverTheActiveWindow();
    void aSecondNoticeTakesThePlaceOfTheFirst();
    void aNoticeComesWhereTheUserIs();
    void aHiddenNoticeIsKeptForTheNextOne();
    void spacersAreNewAndWithoutParent();
    void styleNamesAreFixed();
    void destroyingEndsTheBanner();

private:
    QList<Touch::Banner *> banners() const;

    Touch::ApplicationWindow m_window;
};

QList<Touch::Banner *> TestNotices::banners() const
{
    QList<Touch::Banner *> found;
    const auto items = m_window.scene()->items();
    for (QGraphicsItem *item : items) {
        if (auto *banner = qobject_cast<Touch::Banner *>(item->toGraphicsObject()))
            found.append(banner);
    }
    return found;
}

void TestNotices::initTestCase()
{
    QVERIFY(Support::loadLook());
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
}

void TestNotices::hidingBeforeTheFirstNoticeDoesNothing()
{
    hideInformationBanner();
    QCOMPARE(banners().size(), 0);
}

void TestNotices::aNoticeShowsItsTextOverTheActiveWindow()
{
    showInformationBanner("First");
    QCOMPARE(banners().size(), 1);
    const Touch::Banner *banner = banners().first();
    QVERIFY(banner->isOnDisplay());
    QCOMPARE(banner->title(), "First");
    QCOMPARE(banner->styleName(), "InformationBanner");
}

void TestNotices::aSecondNoticeTakesThePlaceOfTheFirst()
{
    Touch::Banner *banner = banners().first();
    const QSignalSpy gone(banner, &Touch::Banner::disappeared);
    showInformationBanner("Second");
    QCOMPARE(gone.size(), 1);
    QCOMPARE(banners(), QList<Touch::Banner *>{banner});
    QVERIFY(banner->isOnDisplay());
    QCOMPARE(banner->title(), "Second");
}

void TestNotices::aNoticeComesWhereTheUserIs()
{
    const Touch::Banner *banner = banners().first();
    {
        Touch::ApplicationWindow other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QTRY_COMPARE(Touch::Window::active(), &other);
        showInformationBanner("Elsewhere");
        QCOMPARE(banner->scene(), other.scene());
        QVERIFY(banner->isOnDisplay());
    }
    showInformationBanner("Back");
    QCOMPARE(banner->scene(), m_window.scene());
}

void TestNotices::aHiddenNoticeIsKeptForTheNextOne()
{
    QPointer<Touch::Banner> banner = banners().first();
    hideInformationBanner();
    QVERIFY(!banner->isOnDisplay());
    QTRY_VERIFY(banner && !banner->isInTransition());
    hideInformationBanner();
    QVERIFY2(!banner->isInTransition(), "what is hidden already stays as it is");
    showInformationBanner("Third");
    QVERIFY(banner->isOnDisplay());
    QCOMPARE(banner->title(), "Third");
}

void TestNotices::spacersAreNewAndWithoutParent()
{
    const std::unique_ptr<Touch::Separator> first(createSpacer());
    const std::unique_ptr<Touch::Separator> second(createSpacer());
    const std::unique_ptr<Touch::Separator> large(createLargeSpacer());
    QVERIFY(first != second);
    QCOMPARE(first->styleName(), "CommonSpacer");
    QCOMPARE(large->styleName(), "CommonXLargeSpacer");
    for (const Touch::Separator *spacer : {first.get(), second.get(), large.get()}) {
        QVERIFY(!spacer->parentItem());
        QVERIFY(!spacer->parent());
    }
}

void TestNotices::styleNamesAreFixed()
{
    const QStringList names{FullEventBannerStyle,   ShortEventBannerStyle,      PrivateEventBannerStyle,
                            InformationBannerStyle, LockScreenEventBannerStyle, SystemBannerStyle,
                            GenericBannerStyle};
    QCOMPARE(names,
             (QStringList{"FullEventBanner", "ShortEventBanner", "PrivateEventBanner", "InformationBanner",
                          "LockScreenEventBanner", "SystemBanner", "GenericBanner"}));
}

void TestNotices::destroyingEndsTheBanner()
{
    // The last one: nothing may be shown any more afterwards.
    QPointer<Touch::Banner> banner = banners().first();
    QVERIFY(banner->isOnDisplay());
    destroyInformationBanner();
    QVERIFY(!banner);
}

QTEST_MAIN(TestNotices)
#include "tst_notices.moc"
