// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tests/support/look/items.h"
#include "tools/gallery/gallery.h"
#include "touch.h"

#include <memory>
#include <QGraphicsProxyWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

/** Buttons that are made in another order than they are laid out in: A and B in a row above C and D. */
class Crossword : public ApplicationPage
{
public:
    void createContent() override
    {
        ApplicationPage::createContent();
        auto *d = named("D");
        auto *b = named("B");
        auto *c = named("C");
        auto *a = named("A");
        auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
        auto *line = new Widget;
        auto *row = new LinearLayoutPolicy(new Layout(line), Qt::Horizontal);
        row->addItem(a);
        row->addItem(b);
        auto *cells = new Widget;
        auto *grid = new GridLayoutPolicy(new Layout(cells));
        grid->addItem(d, 1, 0);
        grid->addItem(c, 0, 1);
        column->addItem(line);
        column->addItem(cells);
    }

private:
    Button *named(const char *name)
    {
        auto *button = new Button(QLatin1String(name), centralWidget());
        button->setObjectName(QLatin1String(name));
        return button;
    }
};

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void tabFollowsTheLayout_data();
    void tabFollowsTheLayout();
    void tabBeginsAtTheHeaderOfASheet();
    void tabStaysWithinADialog();
    void tabPassesOverWhatIsHiddenOrOff();
    void tabGoesOnFromWhereTheFocusWasGivenUp();
    void focusReturnsToWhereItWas();
    void focusReturnsToThePageIfItsPlaceIsGone();
    void ringShowsForTheKeyboardOnly();
    void ringIsThereAgainWhenADialogCloses();
    void keysPress_data();
    void keysPress();
    void pressIsTakenBackWhenTheFocusGoes();
    void choosesFromAPopup();
    void escapeGoesOneStepBackAtATime();

private:
    QString focusedName() const;
    Button *button(const QString &name) const { return Support::itemIn<Button>(m_page.get(), name); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_window.get(), key, modifiers); }
    QImage pictureOf(const Widget *widget) const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<Crossword> m_page;
};

void TestKeyboard::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestKeyboard::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<Crossword>();
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestKeyboard::cleanup()
{
    m_page.reset();
    m_window.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

QString TestKeyboard::focusedName() const
{
    const QGraphicsItem *item = m_window->scene()->focusItem();
    const QGraphicsObject *object = item ? const_cast<QGraphicsItem *>(item)->toGraphicsObject() : nullptr;
    return object ? object->objectName() : QString();
}

QImage TestKeyboard::pictureOf(const Widget *widget) const
{
    const QRect place = m_window->mapFromScene(widget->sceneBoundingRect()).boundingRect();
    return m_window->grab(place).toImage();
}

void TestKeyboard::tabFollowsTheLayout_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void TestKeyboard::tabFollowsTheLayout()
{
    QFETCH(Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    for (const char *name : {"A", "B", "C", "D", "A"}) {
        press(Qt::Key_Tab);
        QCOMPARE(focusedName(), QLatin1String(name));
    }
    for (const char *name : {"D", "C", "B", "A"}) {
        press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(focusedName(), QLatin1String(name));
    }
}

void TestKeyboard::tabBeginsAtTheHeaderOfASheet()
{
    Gallery::Editor editor;
    editor.appear(m_window.get());
    press(Qt::Key_Tab);
    QCOMPARE(focusedName(), QStringLiteral("negativeButton"));
    press(Qt::Key_Tab);
    QCOMPARE(focusedName(), QStringLiteral("positiveButton"));
    press(Qt::Key_Tab);
    QVERIFY(editor.field->isAncestorOf(m_window->scene()->focusItem()));
    press(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(focusedName(), QStringLiteral("positiveButton"));
}

void TestKeyboard::tabStaysWithinADialog()
{
    button(QStringLiteral("B"))->setFocus(Qt::TabFocusReason);
    Gallery::Question question;
    question.appear(m_window.get());
    QStringList texts;
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        auto *focused = qobject_cast<Button *>(m_window->scene()->focusItem()->toGraphicsObject());
        QVERIFY(focused && question.isAncestorOf(focused));
        texts << focused->text();
    }
    QCOMPARE(texts, (QStringList{texts.constFirst(), "Switch off", "Delete", texts.constFirst()}));
    press(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(question.isAncestorOf(m_window->scene()->focusItem()));
}

void TestKeyboard::tabPassesOverWhatIsHiddenOrOff()
{
    button(QStringLiteral("B"))->hide();
    button(QStringLiteral("C"))->setEnabled(false);
    for (const char *name : {"A", "D", "A"}) {
        press(Qt::Key_Tab);
        QCOMPARE(focusedName(), QLatin1String(name));
    }
    button(QStringLiteral("A"))->hide();
    QCOMPARE(focusedName(), QStringLiteral("D"));
}

void TestKeyboard::tabGoesOnFromWhereTheFocusWasGivenUp()
{
    button(QStringLiteral("B"))->setFocus(Qt::TabFocusReason);
    button(QStringLiteral("B"))->clearFocus();
    QVERIFY(!m_window->scene()->focusItem());
    press(Qt::Key_Tab);
    QCOMPARE(focusedName(), QStringLiteral("C"));
}

void TestKeyboard::focusReturnsToWhereItWas()
{
    button(QStringLiteral("C"))->setFocus(Qt::TabFocusReason);
    Gallery::Editor editor;
    editor.appear(m_window.get());
    press(Qt::Key_Tab);
    Gallery::Question question;
    question.appear(m_window.get());
    press(Qt::Key_Tab);
    question.dismiss();
    QCOMPARE(focusedName(), QStringLiteral("negativeButton"));
    editor.dismiss();
    QCOMPARE(focusedName(), QStringLiteral("C"));
}

void TestKeyboard::focusReturnsToThePageIfItsPlaceIsGone()
{
    button(QStringLiteral("C"))->setFocus(Qt::TabFocusReason);
    Gallery::Question question;
    question.appear(m_window.get());
    button(QStringLiteral("C"))->hide();
    question.dismiss();
    QVERIFY(m_page->hasFocus());
    press(Qt::Key_Tab);
    QCOMPARE(focusedName(), QStringLiteral("A"));
}

void TestKeyboard::ringShowsForTheKeyboardOnly()
{
    const Button *a = button(QStringLiteral("A"));
    const QImage plain = pictureOf(a);
    Finger::tap(*m_window, a);
    QCOMPARE(pictureOf(a), plain);
    button(QStringLiteral("A"))->setFocus(Qt::OtherFocusReason);
    QCOMPARE(pictureOf(a), plain);
    press(Qt::Key_Tab, Qt::ShiftModifier);
    press(Qt::Key_Tab);
    QVERIFY(a->hasFocus());
    const QImage ringed = pictureOf(a);
    QVERIFY(ringed != plain);
    // Another touch, and nobody needs to know where the focus is.
    Finger::press(*m_window, button(QStringLiteral("D")), {10, 10});
    QCOMPARE(pictureOf(a), plain);
    Finger::release(*m_window, button(QStringLiteral("D")), {10, 10});
}

void TestKeyboard::ringIsThereAgainWhenADialogCloses()
{
    press(Qt::Key_Tab);
    const Button *a = button(QStringLiteral("A"));
    const QImage ringed = pictureOf(a);
    Gallery::Question question;
    question.appear(m_window.get());
    press(Qt::Key_Escape);
    QVERIFY(!question.isOnDisplay());
    QCOMPARE(pictureOf(a), ringed);
}

void TestKeyboard::keysPress_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void TestKeyboard::keysPress()
{
    QFETCH(Qt::Key, key);
    auto *plain = button(QStringLiteral("A"));
    Switch toggle(m_page->centralWidget());
    BasicListItem row(BasicListItem::TitleWithSubtitle, m_page->centralWidget());
    const QSignalSpy clicked(plain, &Button::clicked);
    const QSignalSpy tapped(&row, &BasicListItem::clicked);
    plain->setFocus(Qt::TabFocusReason);
    press(key);
    QCOMPARE(clicked.count(), 1);
    toggle.setFocus(Qt::TabFocusReason);
    press(key);
    QVERIFY(toggle.isChecked());
    row.setFocus(Qt::TabFocusReason);
    press(key);
    QCOMPARE(tapped.count(), 1);
}

void TestKeyboard::pressIsTakenBackWhenTheFocusGoes()
{
    auto *plain = button(QStringLiteral("A"));
    const QSignalSpy clicked(plain, &Button::clicked);
    plain->setFocus(Qt::TabFocusReason);
    QTest::keyPress(m_window.get(), Qt::Key_Space);
    QVERIFY(plain->isDown());
    press(Qt::Key_Tab);
    QTest::keyRelease(m_window.get(), Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
}

void TestKeyboard::choosesFromAPopup()
{
    Gallery::RowsPage rows;
    rows.appear(m_window.get());
    rows.choice->setFocus(Qt::TabFocusReason);
    const int before = rows.choice->currentIndex();
    press(Qt::Key_Return);
    QVERIFY(rows.choice->isPopupOpen());
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    QVERIFY(!rows.choice->isPopupOpen());
    QCOMPARE(rows.choice->currentIndex(), (before + 1) % rows.choice->count());
    QVERIFY(rows.choice->hasFocus());
}

void TestKeyboard::escapeGoesOneStepBackAtATime()
{
    Gallery::Editor editor;
    editor.appear(m_window.get());
    connect(static_cast<BasicSheetHeader *>(editor.headerWidget())->negativeAction(), &QAction::triggered, &editor,
            &Sheet::dismiss);
    editor.field->setFocus(Qt::TabFocusReason);
    Gallery::Question question;
    question.appear(m_window.get());
    press(Qt::Key_Escape);
    QVERIFY(!question.isOnDisplay());
    QVERIFY(editor.isOnDisplay());
    QVERIFY(editor.field->isAncestorOf(m_window->scene()->focusItem()));
    press(Qt::Key_Escape);
    QVERIFY(!editor.isOnDisplay());
    QVERIFY(m_page->isOnDisplay() && m_window->isVisible());
    press(Qt::Key_Escape);
    QVERIFY2(m_window->isVisible(), "Escape closed the window");
    press(Qt::Key_Back);
    QVERIFY(!m_window->isVisible());
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
