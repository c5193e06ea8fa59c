// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/theme.h"

#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

class GalleryPage : public ApplicationPage
{
public:
    void createContent() override
    {
        ApplicationPage::createContent();
        setTitle(QStringLiteral("Gallery"));
        auto *layout = new Layout(centralWidget());
        auto *column = new LinearLayoutPolicy(layout, Qt::Vertical);
        column->setContentsMargins(20, 20, 20, 20);
        column->setSpacing(12);
        auto *header = new Label(QStringLiteral("Alarms"));
        header->setStyleName(QStringLiteral("CommonLargeHeader"));
        auto *add = new Button;
        add->setViewType(QStringLiteral("icon"));
        add->setStyleName(QStringLiteral("CommonSmallIconButton"));
        add->setIconID(QStringLiteral("icon-m-common-add"));
        column->addItem(header);
        column->addItem(add, Qt::AlignRight);
        auto *wrapped
            = new Label(QStringLiteral("A long text that needs more than one line because it says a lot of "
                                       "things that nobody will ever read to the end."));
        wrapped->setWordWrap(true);
        column->addItem(wrapped);
        auto *button = new Button(QStringLiteral("Delete"));
        button->setStyleName(QStringLiteral("CommonSingleButton"));
        column->addItem(button, Qt::AlignHCenter);
        auto *primary = new Button(QStringLiteral("Save"));
        primary->setStyleName(QStringLiteral("CommonPrimaryButton"));
        column->addItem(primary);
        column->addStretch();
    }
};

} // namespace

class TestGallery : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryControl_data();
    void showsEveryControl();
};

void TestGallery::showsEveryControl_data()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::newRow("dark") << Theme::Variant::Dark;
    QTest::newRow("light") << Theme::Variant::Light;
}

void TestGallery::showsEveryControl()
{
    QFETCH(Theme::Variant, variant);
    Theme::instance().setVariant(variant);
    ApplicationWindow window;
    GalleryPage page;
    page.appear(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.windowTitle(), QStringLiteral("Gallery"));
    const QString file
        = QStringLiteral(PICTURE_DIR "/gallery-%1.png").arg(QLatin1String(QTest::currentDataTag()));
    QVERIFY(window.grab().save(file));
}

QTEST_MAIN(TestGallery)
#include "tst_gallery.moc"
