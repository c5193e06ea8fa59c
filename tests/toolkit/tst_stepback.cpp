// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/action.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/objectmenu.h"
#include "tools/gallery/gallery.h"

#include <memory>
#include <QAction>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

/** Escape and the close button go one step back, whatever lies on what. */
class TestStepBack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void leavesOneAfterTheOther_data();
    void leavesOneAfterTheOther();
    void leavesAChainedWindowFirst();

private:
    void goBack(Window *window);

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<Gallery::RowsPage> m_first;
};

void TestStepBack::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestStepBack::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_first = std::make_unique<Gallery::RowsPage>();
    m_first->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestStepBack::cleanup()
{
    m_first.reset();
    m_window.reset();
}

void TestStepBack::leavesOneAfterTheOther_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("close button") << false;
}

void TestStepBack::goBack(Window *window)
{
    if (QByteArray(QTest::currentDataTag()) == "close button")
        window->close();
    else
        QTest::keyClick(window, Qt::Key_Escape);
}

void TestStepBack::leavesOneAfterTheOther()
{
    Gallery::RowsPage page;
    page.appear(m_window.get());
    page.choice->showPopup();
    const SceneWindow *popup = m_window->topSceneWindow();
    QVERIFY(popup != &page);
    goBack(m_window.get());
    QCOMPARE(m_window->topSceneWindow(), &page);

    const ObjectMenu *menu = ObjectMenu::open(page.item);
    QCOMPARE(m_window->topSceneWindow(), menu);
    goBack(m_window.get());
    QCOMPARE(m_window->topSceneWindow(), &page);

    Gallery::Editor sheet;
    sheet.appear(m_window.get());
    connect(sheet.findChild<QAction *>(), &QAction::triggered, &sheet, &Sheet::dismiss);
    Gallery::Question question;
    question.appear(m_window.get());
    const QList<SceneWindow *> stack{&sheet, &page, m_first.get()};
    for (SceneWindow *next : stack) {
        goBack(m_window.get());
        QCOMPARE(m_window->topSceneWindow(), next);
        QVERIFY(m_window->isVisible());
    }
    goBack(m_window.get());
    QVERIFY(m_first->isOnDisplay());
    QCOMPARE(m_window->isVisible(), QByteArray(QTest::currentDataTag()) == "Escape");
}

void TestStepBack::leavesAChainedWindowFirst()
{
    ApplicationWindow::pushChainingData(m_window->winId(), m_first->title());
    ApplicationWindow chained;
    Gallery::RowsPage page;
    page.appear(&chained);
    Gallery::Question question;
    question.appear(&chained);
    goBack(&chained);
    QCOMPARE(chained.topSceneWindow(), &page);
    QVERIFY(chained.isVisible());
    goBack(&chained);
    QTRY_VERIFY(!chained.isVisible());
    QVERIFY(!page.isOnDisplay());
    QVERIFY(m_window->isVisible());
    QTRY_COMPARE(Window::active(), m_window.get());
}

QTEST_MAIN(TestStepBack)
#include "tst_stepback.moc"
