// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "gallery.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/theme.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

/** Takes the pictures of every control, to be looked at. */
class TestGallery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void showsEveryControl_data();
    void showsEveryControl();

private:
    static bool save(Window &window, const char *what);
};

void TestGallery::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestGallery::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

bool TestGallery::save(Window &window, const char *what)
{
    const QString file
        = QStringLiteral(PICTURE_DIR "/%1-%2.png").arg(QLatin1String(what), QLatin1String(QTest::currentDataTag()));
    return window.grab().save(file);
}

void TestGallery::showsEveryControl_data()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("dark") << Theme::Variant::Dark << Qt::LeftToRight;
    QTest::newRow("light") << Theme::Variant::Light << Qt::LeftToRight;
    QTest::newRow("mirrored") << Theme::Variant::Light << Qt::RightToLeft;
}

void TestGallery::showsEveryControl()
{
    QFETCH(Theme::Variant, variant);
    QFETCH(Qt::LayoutDirection, direction);
    Theme::instance().setVariant(variant);
    QGuiApplication::setLayoutDirection(direction);
    ApplicationWindow window;
    Gallery::Page page;
    page.appear(&window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    Banner banner;
    banner.setStyleName(QStringLiteral("InformationBanner"));
    banner.setTitle(QStringLiteral("Alarm in 7 hours 25 minutes"));
    banner.appear(&window);
    QVERIFY(save(window, "page"));
    banner.disappear();

    Gallery::Editor editor;
    editor.appear(&window);
    editor.field->setFocus(Qt::TabFocusReason);
    QVERIFY(save(window, "sheet"));
}

QTEST_MAIN(TestGallery)
#include "tst_gallery.moc"
