// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/messagebox.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/stylablewidget.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <memory>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void hasTheNumbersOfTheStandardButtons();
    void saysWhatItsButtonsAreFor_data();
    void saysWhatItsButtonsAreFor();
    void acceptsAfterItHasLeft();
    void isRejectedByWhatLeadsBack_data();
    void isRejectedByWhatLeadsBack();
    void staysWhenItIsTappedItself();
    void keepsInputFromThePage();
    void keepsTheFocusInside();
    void isAboveSheets();
    void tellsNothingWhenItIsOnlyDismissed();
    void isDeletedByItsPolicyAfterItsSignals();
    void isAsHighAsItsContent();
    void pansWhatDoesNotFit();
    void putsLongButtonsBelowEachOther();
    void mirrorsItsButtons();
    void closesAtAButtonOfOnesOwn();
    void growsWithItsText();

private:
    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
};

namespace {

StylableWidget *panelOf(Dialog &dialog)
{
    return Support::itemIn<StylableWidget>(&dialog);
}

void fill(Widget *widget, int rows)
{
    auto *column = new LinearLayoutPolicy(new Layout(widget), Qt::Vertical);
    for (int i = 0; i < rows; ++i)
        column->addItem(new Button(QStringLiteral("Row %1").arg(i), widget));
}

} // namespace

void TestDialog::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestDialog::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestDialog::cleanup()
{
    m_page.reset();
    m_window.reset();
}

void TestDialog::hasTheNumbersOfTheStandardButtons()
{
    QCOMPARE(int(Dialog::Done), 0x10000000);
}

void TestDialog::saysWhatItsButtonsAreFor_data()
{
    QTest::addColumn<Dialog::StandardButton>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::newRow("ok") << Dialog::Ok << QStringLiteral("OK") << int(Dialog::Accepted);
    QTest::newRow("done") << Dialog::Done << QStringLiteral("Done") << int(Dialog::Accepted);
    QTest::newRow("cancel") << Dialog::Cancel << QStringLiteral("Cancel") << int(Dialog::Rejected);
}

void TestDialog::saysWhatItsButtonsAreFor()
{
    QFETCH(Dialog::StandardButton, button);
    QFETCH(QString, text);
    QFETCH(int, result);
    Dialog dialog(QStringLiteral("Repeat"), button);
    const QSignalSpy accepted(&dialog, &Dialog::accepted);
    const QSignalSpy rejected(&dialog, &Dialog::rejected);
    const QSignalSpy finished(&dialog, &Dialog::finished);
    dialog.appear(m_window.get());
    QCOMPARE(dialog.standardButton(button)->text(), text);
    Finger::tap(*m_window, dialog.standardButton(button));
    QVERIFY(!dialog.isOnDisplay());
    QCOMPARE(accepted.count(), result == Dialog::Accepted ? 1 : 0);
    QCOMPARE(rejected.count(), result == Dialog::Rejected ? 1 : 0);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.constFirst().constFirst().toInt(), result);
}

void TestDialog::acceptsAfterItHasLeft()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    bool wasOnDisplay = true;
    connect(&dialog, &Dialog::accepted, this, [&] { wasOnDisplay = dialog.isOnDisplay(); });
    dialog.accept();
    QVERIFY2(wasOnDisplay, "what is not shown cannot be accepted");
    dialog.appear(m_window.get());
    dialog.accept();
    QVERIFY(!wasOnDisplay);
}

void TestDialog::isRejectedByWhatLeadsBack_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"escape", "close", "outside"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void TestDialog::isRejectedByWhatLeadsBack()
{
    QFETCH(QString, way);
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    const QSignalSpy rejected(&dialog, &Dialog::rejected);
    dialog.appear(m_window.get());
    if (way == QLatin1String("escape")) {
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
    } else if (way == QLatin1String("close")) {
        m_window->close();
    } else {
        Finger::press(*m_window, &dialog, {10, 10});
        Finger::release(*m_window, &dialog, {10, 10});
    }
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog.isOnDisplay());
    QVERIFY(m_window->isVisible());
}

void TestDialog::staysWhenItIsTappedItself()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    dialog.appear(m_window.get());
    const QPointF inside = panelOf(dialog)->geometry().topLeft() + QPointF(12, 12);
    Finger::press(*m_window, &dialog, inside);
    Finger::release(*m_window, &dialog, inside);
    QVERIFY(dialog.isOnDisplay());
    // A finger that comes from the panel did not mean to leave it.
    Finger::press(*m_window, &dialog, inside);
    Finger::release(*m_window, &dialog, {10, 10});
    QVERIFY(dialog.isOnDisplay());
}

void TestDialog::keepsInputFromThePage()
{
    auto *button = new Button(QStringLiteral("Below"), m_page->centralWidget());
    button->setGeometry(QRectF(0, 0, 480, 60));
    const QSignalSpy clicked(button, &Button::clicked);
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    dialog.appear(m_window.get());
    QVERIFY2(m_page->isVisible(), "it can be seen around the dialog");
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, QPoint(200, 30));
    QCOMPARE(clicked.count(), 0);
    QVERIFY(!dialog.isOnDisplay());
}

void TestDialog::keepsTheFocusInside()
{
    auto *below = new Button(QStringLiteral("Below"), m_page->centralWidget());
    below->setFocus(Qt::TabFocusReason);
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done | Dialog::Cancel);
    fill(dialog.centralWidget(), 2);
    dialog.appear(m_window.get());
    QList<QGraphicsItem *> visited;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(m_window.get(), Qt::Key_Tab);
        visited << m_window->scene()->focusItem();
        QVERIFY(dialog.isAncestorOf(visited.constLast()));
    }
    QCOMPARE(visited[2], dialog.standardButton(Dialog::Cancel));
    QCOMPARE(visited[3], dialog.standardButton(Dialog::Done));
    QCOMPARE(visited[4], visited[0]);
    QTest::keyClick(m_window.get(), Qt::Key_Backtab);
    QVERIFY(dialog.standardButton(Dialog::Done)->hasFocus());
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QVERIFY(!dialog.isOnDisplay());
    QVERIFY(below->hasFocus());
}

void TestDialog::isAboveSheets()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    Sheet sheet;
    dialog.appear(m_window.get());
    sheet.appear(m_window.get());
    QCOMPARE(m_window->topSceneWindow(), &dialog);
}

void TestDialog::tellsNothingWhenItIsOnlyDismissed()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    const QSignalSpy finished(&dialog, &Dialog::finished);
    dialog.appear(m_window.get());
    dialog.dismiss();
    QVERIFY(!dialog.isOnDisplay());
    QCOMPARE(finished.count(), 0);
}

void TestDialog::isDeletedByItsPolicyAfterItsSignals()
{
    const QPointer<Dialog> dialog = new Dialog(QStringLiteral("Repeat"), Dialog::Done);
    const QSignalSpy accepted(dialog, &Dialog::accepted);
    dialog->appear(m_window.get(), SceneWindow::DestroyWhenDone);
    dialog->accept();
    QCOMPARE(accepted.count(), 1);
    QTRY_VERIFY(!dialog);
}

void TestDialog::isAsHighAsItsContent()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    dialog.appear(m_window.get());
    const qreal empty = panelOf(dialog)->size().height();
    fill(dialog.centralWidget(), 2);
    QTRY_VERIFY(panelOf(dialog)->size().height() >= empty + 104);
    QCOMPARE(dialog.geometry(), QRectF(0, 0, 480, 854));
    const QRectF panel = panelOf(dialog)->geometry();
    QVERIFY(qAbs(panel.center().y() - 427) <= 1);
    QCOMPARE(panel.width(), 400.0);
    m_window->resize(360, 640);
    QTRY_COMPARE(panelOf(dialog)->size().width(), 360.0 - 48);
}

void TestDialog::pansWhatDoesNotFit()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done);
    fill(dialog.centralWidget(), 20);
    dialog.appear(m_window.get());
    QTRY_COMPARE(panelOf(dialog)->size().height(), 854.0 - 48);
    const auto *viewport = Support::itemIn<PannableViewport>(&dialog);
    QTRY_VERIFY(viewport->range().y() > 0);
    QVERIFY(dialog.standardButton(Dialog::Done)->sceneBoundingRect().bottom() <= 854 - 24);
}

void TestDialog::putsLongButtonsBelowEachOther()
{
    MessageBox box(QStringLiteral("Reset?"));
    const Button *first = box.addButton(QStringLiteral("OK"));
    const Button *second = box.addButton(QStringLiteral("Set"));
    box.appear(m_window.get());
    QTRY_COMPARE(first->sceneBoundingRect().top(), second->sceneBoundingRect().top());
    QVERIFY(first->sceneBoundingRect().right() < second->sceneBoundingRect().left());
    const_cast<Button *>(second)->setText(QStringLiteral("Set the time of the alarm by hand, please"));
    QTRY_VERIFY(first->sceneBoundingRect().bottom() <= second->sceneBoundingRect().top());
}

void TestDialog::mirrorsItsButtons()
{
    Dialog dialog(QStringLiteral("Repeat"), Dialog::Done | Dialog::Cancel);
    dialog.setLayoutDirection(Qt::RightToLeft);
    dialog.appear(m_window.get());
    QTRY_VERIFY(dialog.standardButton(Dialog::Done)->sceneBoundingRect().right()
                < dialog.standardButton(Dialog::Cancel)->sceneBoundingRect().left());
}

void TestDialog::closesAtAButtonOfOnesOwn()
{
    MessageBox box(QStringLiteral("Reset?"), QStringLiteral("The time is skipped."));
    Button *first = box.addButton(QStringLiteral("OK"));
    Button *second = box.addButton(QStringLiteral("Set manually"));
    first->setObjectName(QStringLiteral("resetButton"));
    second->setObjectName(QStringLiteral("setAgainButton"));
    bool wasOnDisplay = true;
    connect(second, &Button::clicked, this, [&] { wasOnDisplay = box.isOnDisplay(); });
    const QSignalSpy other(first, &Button::clicked);
    box.appear(m_window.get());
    Finger::tap(*m_window, Support::itemIn<Button>(&box, QStringLiteral("setAgainButton")));
    QVERIFY(!box.isOnDisplay());
    QVERIFY2(!wasOnDisplay, "what the button does comes after the box has gone");
    QCOMPARE(other.count(), 0);
}

void TestDialog::growsWithItsText()
{
    MessageBox box(QStringLiteral("Reset?"), QStringLiteral("Short."));
    box.addButton(QStringLiteral("OK"));
    box.appear(m_window.get());
    const qreal before = panelOf(box)->size().height();
    box.setText(QStringLiteral("The clock goes forward in that night, so there is no such time. ").repeated(3));
    QCOMPARE(box.text().left(9), QStringLiteral("The clock"));
    QTRY_VERIFY(panelOf(box)->size().height() > before + 60);
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
