// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/theme.h"
#include "tests/support/look/touchtargets.h"
#include "tools/gallery/gallery.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Touch;

/** Takes the pictures of every control, to be looked at: no text is cut off in them, nothing is too small to touch. */
class TestGallery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void showsEveryControl_data();
    void showsEveryControl();
    void isAProgramThatTakesPictures();

private:
    static void checkPicture(Window &window, const char *scene);
    static bool save(Window &window, const QString &scene);
    static QStringList cutOff(const Window &window);
};

void TestGallery::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestGallery::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    Theme::instance().setTextScale(1);
}

bool TestGallery::save(Window &window, const QString &scene)
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../screenshots"));
    QDir().mkpath(folder.path());
    const QString file = QStringLiteral("gallery-%1-%2.png").arg(scene, QLatin1String(QTest::currentDataTag()));
    return window.grab().save(folder.filePath(file));
}

void TestGallery::checkPicture(Window &window, const char *scene)
{
    QCoreApplication::processEvents();
    QVERIFY(save(window, QString::fromLatin1(scene)));
    QCOMPARE(cutOff(window).join(QLatin1Char('|')), QString());
    QCOMPARE(Support::tooSmallToTouch(window.scene()).join(QLatin1Char('|')), QString());
}

QStringList TestGallery::cutOff(const Window &window)
{
    QStringList texts;
    const QList<QGraphicsItem *> items = window.scene()->items();
    for (const QGraphicsItem *item : items) {
        const auto *label = qobject_cast<const Label *>(item->toGraphicsObject());
        const bool isElidedOnPurpose = label && label->objectName() == QLatin1String("galleryElided");
        if (label && label->isVisible() && !isElidedOnPurpose && !label->showsWholeText())
            texts << label->text();
        const auto *button = qobject_cast<const Button *>(item->toGraphicsObject());
        if (button && button->isVisible() && !button->showsWholeText())
            texts << button->text();
    }
    return texts;
}

void TestGallery::showsEveryControl_data()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<qreal>("textScale");
    for (const auto variant : {Theme::Variant::Light, Theme::Variant::Dark}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const qreal textScale : {1.0, 2.0})
                QTest::addRow("%s%s%s", variant == Theme::Variant::Light ? "light" : "dark",
                              direction == Qt::LeftToRight ? "" : "-mirrored", textScale == 1 ? "" : "-large")
                    << variant << direction << textScale;
        }
    }
}

void TestGallery::showsEveryControl()
{
    QFETCH(Theme::Variant, variant);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(qreal, textScale);
    Theme::instance().setVariant(variant);
    Theme::instance().setTextScale(textScale);
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
    checkPicture(window, "page");
    banner.disappear();

    Gallery::Question question;
    question.appear(&window);
    checkPicture(window, "question");
    question.disappear();

    Gallery::Editor editor;
    editor.appear(&window);
    editor.field->setFocus(Qt::TabFocusReason);
    checkPicture(window, "sheet");
    editor.disappear();

    Gallery::ListPage list;
    list.appear(&window);
    checkPicture(window, "list");

    Gallery::ChoicesPage choices;
    choices.appear(&window);
    checkPicture(window, "choices");

    Gallery::RowsPage rows;
    rows.appear(&window);
    checkPicture(window, "rows");
    rows.choice->showPopup();
    checkPicture(window, "choice");
    rows.choice->dismissPopup();
    ObjectMenu::open(rows.item);
    checkPicture(window, "menu");
}

void TestGallery::isAProgramThatTakesPictures()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("picture.png"));
    QProcess gallery;
    gallery.start(QStringLiteral(GALLERY_PROGRAM),
                  {QStringLiteral("--variant=dark"), QStringLiteral("--size=360x640"), QStringLiteral("--mirrored"),
                   QStringLiteral("--text-scale=1.5"), QStringLiteral("--picture"), file});
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.exitCode(), 0);
    QCOMPARE(QImage(file).size(), QSize(360, 640));
}

QTEST_MAIN(TestGallery)
#include "tst_gallery.moc"
