// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/textedit.h"
#include "touch.h"

#include <QAction>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

using namespace Touch;

/** Which of the scene windows of a window gets what the user does. */
class TestWindowInput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsInputFromWhatASheetCovers();
    void takesInputDuringItsTransition();
    void takesNoInputOnceItGoes();
    void goesOneStepBackOnEscapeBackAndClose();
    void leavesASheetAsItsNegativeAction();
    void closesAtOnceWhenTold();
    void givesTheSecondTapToNothingNew_data();
    void givesTheSecondTapToNothingNew();
    void givesTheSecondTapToWhatTookTheFirst();
    void givesTheFocusBack();

private:
    ApplicationWindow *m_window = nullptr;
    ApplicationPage *m_page = nullptr;
    Button *m_button = nullptr; ///< covers the page
};

void TestWindowInput::init()
{
    m_window = new ApplicationWindow;
    m_page = new ApplicationPage;
    m_button = new Button(QStringLiteral("Open"), m_page->centralWidget());
    m_button->setGeometry(QRectF(0, 0, 480, 800));
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestWindowInput::cleanup()
{
    delete m_page;
    delete m_window;
}

void TestWindowInput::keepsInputFromWhatASheetCovers()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    Finger::tap(*m_window, m_button);
    QCOMPARE(clicked.count(), 1);
    Sheet sheet;
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    QVERIFY(!m_page->isVisible());
    Finger::tap(*m_window, m_button);
    QCOMPARE(clicked.count(), 1);
    sheet.dismiss();
    QVERIFY(m_page->isVisible());
}

void TestWindowInput::takesInputDuringItsTransition()
{
    Sheet sheet;
    auto *button = new Button(QStringLiteral("Save"), sheet.centralWidget());
    button->setGeometry(QRectF(100, 100, 100, 60));
    const QSignalSpy clicked(button, &Button::clicked);
    const QSignalSpy below(m_button, &Button::clicked);
    sheet.appear(m_window);
    QVERIFY(sheet.isInTransition());
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, QPoint(150, 130));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(below.count(), 0);
    QVERIFY(!sheet.isInTransition());
}

void TestWindowInput::takesNoInputOnceItGoes()
{
    Sheet sheet;
    auto *button = new Button(QStringLiteral("Save"), sheet.centralWidget());
    button->setGeometry(QRectF(100, 100, 100, 60));
    const QSignalSpy clicked(button, &Button::clicked);
    const QSignalSpy below(m_button, &Button::clicked);
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    sheet.dismiss();
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, QPoint(150, 130));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(below.count(), 1);
}

void TestWindowInput::goesOneStepBackOnEscapeBackAndClose()
{
    Sheet first;
    Sheet second;
    const QSignalSpy firstDismissed(&first, &SceneWindow::dismissed);
    const QSignalSpy secondDismissed(&second, &SceneWindow::dismissed);
    first.appear(m_window);
    second.appear(m_window);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QTRY_COMPARE(secondDismissed.count(), 1);
    QCOMPARE(firstDismissed.count(), 0);
    m_window->close();
    QTRY_COMPARE(firstDismissed.count(), 1);
    QVERIFY(m_window->isVisible());
    QTest::keyClick(m_window, Qt::Key_Escape);
    QVERIFY2(m_window->isVisible(), "Escape closed the window");
    QTest::keyClick(m_window, Qt::Key_Back);
    QVERIFY(!m_window->isVisible());
}

void TestWindowInput::leavesASheetAsItsNegativeAction()
{
    Sheet sheet;
    auto *header = new BasicSheetHeader;
    QAction cancel(QStringLiteral("Cancel"), nullptr);
    header->setNegativeAction(&cancel);
    sheet.setHeaderWidget(header);
    const QSignalSpy cancelled(&cancel, &QAction::triggered);
    sheet.appear(m_window);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY2(sheet.isOnDisplay(), "whether it closes is for the action");
    m_window->close();
    QCOMPARE(cancelled.count(), 2);
    QVERIFY(m_window->isVisible());
}

void TestWindowInput::closesAtOnceWhenTold()
{
    Sheet sheet;
    sheet.appear(m_window);
    m_window->closeAtOnce();
    QVERIFY(!m_window->isVisible());
    m_window->show();
    m_window->close();
    QVERIFY2(m_window->isVisible(), "only that once");
}

void TestWindowInput::givesTheSecondTapToNothingNew_data()
{
    QTest::addColumn<QEvent::Type>("second");
    QTest::addColumn<int>("delay");
    QTest::addColumn<QPoint>("shift");
    QTest::addColumn<bool>("isTaken");
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    QTest::newRow("double click") << QEvent::MouseButtonDblClick << interval / 2 << QPoint() << false;
    QTest::newRow("two presses") << QEvent::MouseButtonPress << interval / 2 << QPoint(12, 12) << false;
    QTest::newRow("later") << QEvent::MouseButtonPress << interval * 2 << QPoint() << true;
    QTest::newRow("elsewhere") << QEvent::MouseButtonPress << interval / 2 << QPoint(0, 200) << true;
}

void TestWindowInput::givesTheSecondTapToNothingNew()
{
    QFETCH(QEvent::Type, second);
    QFETCH(int, delay);
    QFETCH(QPoint, shift);
    QFETCH(bool, isTaken);
    Sheet sheet;
    auto *above = new Button(QStringLiteral("Save"), sheet.centralWidget());
    above->setGeometry(QRectF(0, 0, 480, 800));
    connect(m_button, &Button::clicked, &sheet, [this, &sheet] { sheet.appear(m_window); });
    connect(above, &Button::clicked, &sheet, &Sheet::dismiss);
    const QSignalSpy taken(above, &Button::clicked);
    const QPoint place(200, 300);
    quint64 time = 5000;
    Finger::send(*m_window, QEvent::MouseButtonPress, place, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, time + 20);
    QVERIFY(sheet.isOnDisplay());
    time += quint64(delay);
    Finger::send(*m_window, second, place + shift, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place + shift, time + 20);
    QCOMPARE(taken.count(), isTaken ? 1 : 0);
    if (isTaken)
        return;
    // Once the double tap is over, the sheet's button works; the same goes for what closing it brings up.
    time += 10000;
    Finger::send(*m_window, QEvent::MouseButtonPress, place, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, time + 20);
    QCOMPARE(taken.count(), 1);
    Finger::send(*m_window, second, place + shift, time + quint64(delay));
    Finger::send(*m_window, QEvent::MouseButtonRelease, place + shift, time + quint64(delay) + 20);
    QVERIFY2(!sheet.isOnDisplay(), "the page's button did not open it again");
}

void TestWindowInput::givesTheSecondTapToWhatTookTheFirst()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    const QPoint place(200, 300);
    Finger::send(*m_window, QEvent::MouseButtonPress, place, 5000);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, 5020);
    Finger::send(*m_window, QEvent::MouseButtonDblClick, place, 5100);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, 5120);
    QCOMPARE(clicked.count(), 2);
}

void TestWindowInput::givesTheFocusBack()
{
    auto *field = new TextEdit(m_page->centralWidget());
    field->setGeometry(QRectF(0, 0, 200, 60));
    field->setFocus(Qt::OtherFocusReason);
    QVERIFY(field->hasFocus());
    const QSignalSpy lost(field, &TextEdit::lostFocus);
    Sheet sheet;
    sheet.appear(m_window);
    QCOMPARE(lost.count(), 1);
    QVERIFY(sheet.hasFocus());
    QTRY_VERIFY(!sheet.isInTransition());
    sheet.dismiss();
    QVERIFY(field->hasFocus());
}

QTEST_MAIN(TestWindowInput)
#include "tst_windowinput.moc"
