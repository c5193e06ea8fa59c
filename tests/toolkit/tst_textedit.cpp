// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/theme.h"
#include "touch.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

class TestTextEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void takesWhatIsTyped();
    void holdsNoMoreThanItsMaximumLength();
    void keepsTextPromptAndCursor();
    void tellsWhyTheFocusCameAndWent();
    void losesTheFocusWhenItIsClearedOnIt();
    void goesQuietlyWithTheFocus();
    void goesQuietlyWhileSomethingIsComposed();
    void tellsOfReturn();
    void takesTheFocusByATapOnItsEdge();
    void copiesAndPastes();
    void takesTextFromAnInputMethod();
    void whatIsBeingComposedIsNoTextYet();
    void whatIsBeingComposedCanBeTaken();
    void whatIsBeingComposedStaysWhenTheFocusGoes();
    void whatTheInputMethodGaveUpIsNotTaken();
    void showsItsPromptOnlyWhileEmpty();
    void showsAllOfAnEnlargedPrompt();
    void isReachedByTab();
    void letsEscapeThrough();

private:
    int inkOf(const TextEdit *edit) const;
    /** As an input method does while one types; an empty text gives up. */
    void compose(const QString &text);

    ApplicationWindow *m_window = nullptr;
    Sheet *m_sheet = nullptr;
    TextEdit *m_edit = nullptr;
};

void TestTextEdit::init()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    m_window = new ApplicationWindow;
    auto *page = new ApplicationPage;
    page->appear(m_window, SceneWindow::DestroyWhenDone);
    m_sheet = new Sheet;
    m_edit = new TextEdit(m_sheet->centralWidget());
    m_edit->setGeometry(QRectF(20, 20, 300, 56));
    m_sheet->appear(m_window, SceneWindow::DestroyWhenDone);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestTextEdit::cleanup()
{
    delete m_window;
}

/** How many pixels of the field's middle are not of its background. */
int TestTextEdit::inkOf(const TextEdit *edit) const
{
    const QRect area = m_window->mapFromScene(edit->sceneBoundingRect().adjusted(8, 8, -8, -8)).boundingRect();
    const QImage image = m_window->grab(area).toImage();
    const QColor background = image.pixelColor(image.width() - 4, image.height() / 2);
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixelColor(x, y) != background ? 1 : 0;
    }
    return ink;
}

void TestTextEdit::takesWhatIsTyped()
{
    const QSignalSpy changed(m_edit, &TextEdit::textChanged);
    Finger::tap(*m_window, m_edit);
    QTest::keyClicks(m_window, QStringLiteral("Run"));
    QCOMPARE(m_edit->text(), QStringLiteral("Run"));
    QCOMPARE(changed.count(), 3);
    QTest::keyClick(m_window, Qt::Key_Backspace);
    QCOMPARE(m_edit->text(), QStringLiteral("Ru"));
}

void TestTextEdit::holdsNoMoreThanItsMaximumLength()
{
    m_edit->setMaxLength(5);
    m_edit->setText(QStringLiteral("1234567"));
    QCOMPARE(m_edit->text(), QStringLiteral("12345"));
    m_edit->setText(QStringLiteral("1234"));
    m_edit->setFocus(Qt::OtherFocusReason);
    m_edit->setCursorPosition(4);
    QTest::keyClicks(m_window, QStringLiteral("xyz"));
    QCOMPARE(m_edit->text(), QStringLiteral("1234x"));
}

void TestTextEdit::keepsTextPromptAndCursor()
{
    m_edit->setText(QStringLiteral("abc"));
    m_edit->setPrompt(QStringLiteral("Title"));
    m_edit->setCursorPosition(0);
    QCOMPARE(m_edit->text(), QStringLiteral("abc"));
    QCOMPARE(m_edit->prompt(), QStringLiteral("Title"));
    QCOMPARE(m_edit->cursorPosition(), 0);
}

void TestTextEdit::tellsWhyTheFocusCameAndWent()
{
    QSignalSpy gained(m_edit, &TextEdit::gainedFocus);
    QSignalSpy lost(m_edit, &TextEdit::lostFocus);
    Finger::tap(*m_window, m_edit);
    QCOMPARE(gained.count(), 1);
    QCOMPARE(gained.takeFirst().at(0).value<Qt::FocusReason>(), Qt::MouseFocusReason);
    auto *button = new Button(QStringLiteral("Elsewhere"), m_sheet->centralWidget());
    button->setGeometry(QRectF(20, 200, 200, 60));
    QTest::keyClick(m_window, Qt::Key_Tab);
    QCOMPARE(lost.count(), 1);
    QCOMPARE(lost.takeFirst().at(0).value<Qt::FocusReason>(), Qt::TabFocusReason);
    QVERIFY(button->hasFocus());
}

void TestTextEdit::losesTheFocusWhenItIsClearedOnIt()
{
    const QSignalSpy lost(m_edit, &TextEdit::lostFocus);
    m_edit->setFocus(Qt::OtherFocusReason);
    QVERIFY(m_edit->hasFocus());
    m_edit->clearFocus();
    QVERIFY(!m_edit->hasFocus());
    QCOMPARE(lost.count(), 1);
}

void TestTextEdit::goesQuietlyWithTheFocus()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    QVERIFY(m_edit->hasFocus());
    const QSignalSpy lost(m_edit, &TextEdit::lostFocus);
    delete m_edit;
    QCOMPARE(lost.count(), 0);
}

void TestTextEdit::goesQuietlyWhileSomethingIsComposed()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    compose(QStringLiteral("早い"));
    const QSignalSpy changed(m_edit, &TextEdit::textChanged);
    delete m_edit;
    QCOMPARE(changed.count(), 0);
}

void TestTextEdit::tellsOfReturn()
{
    const QSignalSpy returned(m_edit, &TextEdit::returnPressed);
    m_edit->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
}

void TestTextEdit::takesTheFocusByATapOnItsEdge()
{
    Finger::press(*m_window, m_edit, {3, 28});
    Finger::release(*m_window, m_edit, {3, 28});
    QVERIFY(m_edit->hasFocus());
}

void TestTextEdit::copiesAndPastes()
{
    m_edit->setText(QStringLiteral("copy me"));
    m_edit->setFocus(Qt::OtherFocusReason);
    QTest::keySequence(m_window, QKeySequence::SelectAll);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("copy me"));
    QTest::keySequence(m_window, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("copy me"));
    m_edit->setText(QString());
    QTest::keySequence(m_window, QKeySequence::Paste);
    QCOMPARE(m_edit->text(), QStringLiteral("copy me"));
}

void TestTextEdit::takesTextFromAnInputMethod()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    QVERIFY(m_window->viewport()->testAttribute(Qt::WA_InputMethodEnabled)
            || m_window->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("早い"));
    QCoreApplication::sendEvent(m_window, &event);
    QCOMPARE(m_edit->text(), QStringLiteral("早い"));
}

void TestTextEdit::compose(const QString &text)
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(m_window, &event);
}

void TestTextEdit::whatIsBeingComposedIsNoTextYet()
{
    m_edit->setText(QStringLiteral("Run"));
    m_edit->setFocus(Qt::OtherFocusReason);
    compose(QStringLiteral("ning"));
    QCOMPARE(m_edit->text(), QStringLiteral("Run"));
}

void TestTextEdit::whatIsBeingComposedCanBeTaken()
{
    m_edit->setText(QStringLiteral("Run"));
    m_edit->setFocus(Qt::OtherFocusReason);
    m_edit->setCursorPosition(3);
    const QSignalSpy changed(m_edit, &TextEdit::textChanged);
    compose(QStringLiteral("n"));
    compose(QStringLiteral("ning"));
    m_edit->commit();
    QCOMPARE(m_edit->text(), QStringLiteral("Running"));
    QCOMPARE(changed.count(), 1);
    m_edit->commit();
    QCOMPARE(m_edit->text(), QStringLiteral("Running"));
}

void TestTextEdit::whatIsBeingComposedStaysWhenTheFocusGoes()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    compose(QStringLiteral("早い"));
    QString atTheEnd;
    connect(m_edit, &TextEdit::lostFocus, this, [this, &atTheEnd] { atTheEnd = m_edit->text(); });
    m_edit->clearFocus();
    QCOMPARE(atTheEnd, QStringLiteral("早い"));
}

void TestTextEdit::whatTheInputMethodGaveUpIsNotTaken()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    compose(QStringLiteral("早い"));
    compose(QString());
    m_edit->commit();
    QCOMPARE(m_edit->text(), QString());
}

void TestTextEdit::showsAllOfAnEnlargedPrompt()
{
    m_edit->setText({});
    m_edit->setPrompt(QStringLiteral("MMMMMMMMMM"));
    const QFont designed = m_edit->style().font();
    m_edit->resize(QFontMetricsF(designed).horizontalAdvance(m_edit->prompt()) + 60, m_edit->size().height());
    QVERIFY(m_edit->showsWholePrompt());
    Theme::instance().setTextScale(2);
    const auto restore = qScopeGuard([] { Theme::instance().setTextScale(1); });
    QVERIFY(m_edit->showsWholePrompt());
    m_edit->resize(120, m_edit->size().height());
    QVERIFY(!m_edit->showsWholePrompt());
}

void TestTextEdit::showsItsPromptOnlyWhileEmpty()
{
    QCOMPARE(inkOf(m_edit), 0);
    m_edit->setPrompt(QStringLiteral("MMMMMMMMMM"));
    QTRY_VERIFY(inkOf(m_edit) > 200);
    m_edit->setText(QStringLiteral("."));
    QTRY_VERIFY(inkOf(m_edit) < 50);
}

void TestTextEdit::isReachedByTab()
{
    auto *second = new TextEdit(m_sheet->centralWidget());
    second->setGeometry(QRectF(20, 100, 300, 56));
    QTest::keyClick(m_window, Qt::Key_Tab);
    QVERIFY(m_edit->hasFocus());
    QTest::keyClick(m_window, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
}

void TestTextEdit::letsEscapeThrough()
{
    const QSignalSpy dismissed(m_sheet, &SceneWindow::dismissed);
    m_edit->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(dismissed.count(), 1);
}

QTEST_MAIN(TestTextEdit)
#include "tst_textedit.moc"
