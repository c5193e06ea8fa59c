// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/theme.h"
#include "teacells.h"
#include "teapage.h"
#include "teasheet.h"

#include <QPointer>
#include <QStringListModel>
#include <QTest>

using namespace Touch;

/** The examples of the toolkit's page do what the page says. */
class TestToolkitPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thePageHasAnArrangementForEachOrientation();
    void theSheetIsCancelledByEscape();
    void theListHasCellsForTheRowsThatAreSeen();
    void theRulesReachTheirWidgets();
};

void TestToolkitPage::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QString error;
    QVERIFY2(Theme::instance().load(QStringLiteral(EXAMPLES "/tea.json"), &error), qPrintable(error));
}

void TestToolkitPage::thePageHasAnArrangementForEachOrientation()
{
    ApplicationWindow window;
    TeaPage page;
    QVERIFY(!page.isContentCreated());
    page.appear(&window);
    QVERIFY(page.isContentCreated());
    window.show();
    const QList<QGraphicsItem *> items = page.centralWidget()->childItems();
    QCOMPARE(items.size(), 2);
    QTRY_VERIFY(items[1]->y() > items[0]->y());
    window.setOrientation(Qt::Horizontal);
    QTRY_VERIFY(items[1]->x() > items[0]->x());
}

void TestToolkitPage::theSheetIsCancelledByEscape()
{
    ApplicationWindow window;
    ApplicationPage page;
    page.appear(&window);
    const QPointer<TeaSheet> sheet = new TeaSheet;
    sheet->appear(&window, SceneWindow::DestroyWhenDismissed);
    window.show();
    QVERIFY(sheet->isOnDisplay());
    QCOMPARE(sheet->name(), QString());
    QTest::keyClick(&window, Qt::Key_Escape);
    QTRY_VERIFY(!sheet);
}

void TestToolkitPage::theListHasCellsForTheRowsThatAreSeen()
{
    QStringList names;
    for (int i = 0; i < 100; ++i)
        names << QStringLiteral("Tea %1").arg(i);
    QStringListModel model(names);
    ApplicationWindow window;
    ApplicationPage page;
    page.appear(&window);
    auto *viewport = new PannableViewport(page.centralWidget());
    auto *list = new List;
    list->setCellCreator(new TeaCells);
    list->setItemModel(&model);
    viewport->setWidget(list);
    viewport->setGeometry(QRectF(0, 0, 400, 600));
    window.show();
    QTRY_VERIFY(list->cellAt(0));
    QCOMPARE(static_cast<Button *>(list->cellAt(0))->text(), QStringLiteral("Tea 0"));
    QVERIFY(!list->cellAt(99));
}

void TestToolkitPage::theRulesReachTheirWidgets()
{
    const auto styleOf = [](const char *styleName, const char *objectName) {
        return Theme::instance().style(QString::fromLatin1(styleName), QString::fromLatin1(objectName),
                                       &Label::staticMetaObject);
    };
    QCOMPARE(styleOf("TeaTime", "")->color, Theme::instance().color(QStringLiteral("leaf")));
    QCOMPARE(styleOf("TeaTimeOver", "")->color, Theme::instance().color(QStringLiteral("danger")));
    QCOMPARE(styleOf("TeaTimeOver", "")->pixelSize, 48);
    QCOMPARE(styleOf("TeaTime", "steepingTime")->margins.bottom(), 16.0);
    QCOMPARE(styleOf("TeaTime", "anything")->margins.bottom(), 0.0);
}

QTEST_MAIN(TestToolkitPage)
#include "tst_toolkitpage.moc"
