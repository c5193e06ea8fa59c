// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tools/gallery/gallery.h"

#include <QAccessible>
#include <QAction>
#include <QGraphicsProxyWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

/** What assistive technology finds in a window. */
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsWithTheWindowAndItsPage();
    void findsAButtonByItsNameAndPressesIt();
    void togglesASwitch();
    void seesTheRowsOfAListThatAreShown();
    void seesTheListAsATableOfAllRows();
    void readsAField();
    void typesIntoAField();
    void knowsWhereEachCharacterIs_data();
    void knowsWhereEachCharacterIs();
    void tellsOfTypingWhereTheFieldIs();
    void opensTheMenuOfWhatHasActions();
    void takesTheNameItIsGiven();
    void knowsWhereThingsAre();

private:
    static QAccessibleInterface *find(QAccessibleInterface *from, QAccessible::Role role, const QString &name);
    QAccessibleInterface *root() const { return QAccessible::queryAccessibleInterface(m_window); }

    ApplicationWindow *m_window = nullptr;
    Gallery::Page *m_page = nullptr;
};

void TestAccessibility::init()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    m_window = new ApplicationWindow;
    m_page = new Gallery::Page;
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestAccessibility::cleanup()
{
    delete m_page;
    delete m_window;
}

QAccessibleInterface *TestAccessibility::find(QAccessibleInterface *from, QAccessible::Role role, const QString &name)
{
    if (from->role() == role && from->text(QAccessible::Name) == name)
        return from;
    for (int i = 0; i < from->childCount(); ++i) {
        QAccessibleInterface *child = from->child(i);
        if (from->indexOfChild(child) != i || child->parent() != from)
            return nullptr;
        if (QAccessibleInterface *found = find(child, role, name))
            return found;
    }
    return nullptr;
}

void TestAccessibility::startsWithTheWindowAndItsPage()
{
    QCOMPARE(root()->role(), QAccessible::Window);
    QCOMPARE(root()->text(QAccessible::Name), QStringLiteral("Gallery"));
    QCOMPARE(root()->childCount(), 1);
    QCOMPARE(root()->child(0)->object(), m_page);
    Gallery::Editor editor;
    editor.appear(m_window);
    QCOMPARE(root()->childCount(), 1);
    QCOMPARE(root()->child(0)->role(), QAccessible::Dialog);
}

void TestAccessibility::findsAButtonByItsNameAndPressesIt()
{
    QAccessibleInterface *found = find(root(), QAccessible::Button, QStringLiteral("New alarm"));
    QVERIFY(found);
    auto *button = qobject_cast<Button *>(found->object());
    const QSignalSpy clicked(button, &Button::clicked);
    QCOMPARE(found->actionInterface()->actionNames().constFirst(), QAccessibleActionInterface::pressAction());
    found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(found->state().focusable);
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(found->state().focused);
    QCOMPARE(root()->focusChild(), found);
    button->setEnabled(false);
    QVERIFY(found->state().disabled);
    found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
}

void TestAccessibility::togglesASwitch()
{
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(m_page->toggle);
    QCOMPARE(found->role(), QAccessible::CheckBox);
    QVERIFY(found->state().checkable);
    QVERIFY(found->state().checked);
    found->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!m_page->toggle->isChecked());
    QVERIFY(!found->state().checked);
}

void TestAccessibility::seesTheRowsOfAListThatAreShown()
{
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(m_page->list);
    QCOMPARE(list->role(), QAccessible::List);
    QTRY_VERIFY(list->childCount() > 3);
    QVERIFY(list->childCount() < 30);
    QVERIFY(find(root(), QAccessible::Button, QStringLiteral("Row 1")));
}

void TestAccessibility::seesTheListAsATableOfAllRows()
{
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(m_page->list);
    QTRY_VERIFY(list->childCount() > 3);
    QAccessibleTableInterface *table = list->tableInterface();
    QVERIFY(table);
    QCOMPARE(table->rowCount(), 1000);
    QCOMPARE(table->columnCount(), 1);
    QCOMPARE(table->cellAt(999, 0), nullptr);
    for (int i = 0; i < list->childCount(); ++i) {
        const QAccessibleTableCellInterface *cell = list->child(i)->tableCellInterface();
        QVERIFY(cell);
        QCOMPARE(cell->rowIndex(), i);
        QCOMPARE(cell->table(), list);
        QCOMPARE(table->cellAt(i, 0), list->child(i));
    }
    QVERIFY(!list->tableCellInterface());
}

void TestAccessibility::readsAField()
{
    Gallery::Editor editor;
    editor.appear(m_window);
    editor.field->setPrompt(QStringLiteral("Title"));
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(editor.field);
    QCOMPARE(found->role(), QAccessible::EditableText);
    QCOMPARE(found->text(QAccessible::Name), QStringLiteral("Title"));
    QCOMPARE(found->text(QAccessible::Value), QStringLiteral("Morning run"));
    QVERIFY(found->state().editable);
    found->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(found->state().focused);
}

void TestAccessibility::typesIntoAField()
{
    Gallery::Editor editor;
    editor.appear(m_window);
    editor.field->setMaxLength(12);
    QAccessibleInterface *field = find(root(), QAccessible::EditableText, editor.field->accessibleName());
    QVERIFY(field);
    QAccessibleTextInterface *text = field->textInterface();
    QAccessibleEditableTextInterface *editable = field->editableTextInterface();
    QCOMPARE(text->text(0, text->characterCount()), QStringLiteral("Morning run"));
    editable->replaceText(0, 7, QStringLiteral("Evening"));
    QCOMPARE(editor.field->text(), QStringLiteral("Evening run"));
    editable->insertText(7, QStringLiteral("abc"));
    QCOMPARE(editor.field->text(), QStringLiteral("Eveninga run"));
    editable->deleteText(7, 8);
    QCOMPARE(editor.field->text(), QStringLiteral("Evening run"));
    text->setCursorPosition(3);
    QCOMPARE(editor.field->cursorPosition(), 3);
    text->setSelection(0, 0, 7);
    int start = -1;
    int end = -1;
    text->selection(0, &start, &end);
    QCOMPARE(text->selectionCount(), 1);
    QCOMPARE(start, 0);
    QCOMPARE(end, 7);
    text->removeSelection(0);
    QCOMPARE(text->selectionCount(), 0);
    QCOMPARE(editor.field->selectedText(), QString());
    field->setText(QAccessible::Value, QStringLiteral("Nap"));
    QCOMPARE(editor.field->text(), QStringLiteral("Nap"));
}

void TestAccessibility::knowsWhereEachCharacterIs_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("short") << "Morning run" << Qt::LeftToRight;
    QTest::newRow("mirrored") << "Morning run" << Qt::RightToLeft;
    QTest::newRow("from the right") << QString::fromUtf8("ריצת בוקר") << Qt::RightToLeft;
    QTest::newRow("longer than the field") << QStringLiteral("Morning run ").repeated(20) << Qt::LeftToRight;
}

void TestAccessibility::knowsWhereEachCharacterIs()
{
    QFETCH(QString, content);
    QFETCH(Qt::LayoutDirection, direction);
    Gallery::Editor editor;
    editor.setLayoutDirection(direction);
    editor.appear(m_window);
    editor.field->setText(content);
    const QAccessibleInterface *field = find(root(), QAccessible::EditableText, editor.field->accessibleName());
    QVERIFY(field);
    QAccessibleTextInterface *text = QAccessible::queryAccessibleInterface(editor.field)->textInterface();
    const int last = int(content.size()) - 1;
    for (const int offset : {last - 4, last - 2, last}) {
        text->setCursorPosition(last + 1);
        // The field scrolls when it is painted.
        m_window->grab();
        const QRect place = text->characterRect(offset);
        QVERIFY(field->rect().contains(place.center()));
        // Either of its two edges may be the nearer one.
        const int found = text->offsetAtPoint(place.center());
        QVERIFY2(found == offset || found == offset + 1, qPrintable(QString::number(found)));
    }
    QCOMPARE(text->characterRect(last + 1), QRect());
}

void TestAccessibility::tellsOfTypingWhereTheFieldIs()
{
    Gallery::Editor editor;
    editor.appear(m_window);
    // The line edit itself tells of what is typed; it must stand where the field does.
    const auto *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(editor.field->childItems().constFirst());
    QVERIFY(proxy);
    QAccessibleInterface *edit = QAccessible::queryAccessibleInterface(proxy->widget());
    QCOMPARE(edit->parent()->object(), editor.centralWidget());
    QVERIFY(edit->parent()->indexOfChild(edit) >= 0);
    QCOMPARE(QAccessible::queryAccessibleInterface(qApp)->childCount(), 1);
}

void TestAccessibility::opensTheMenuOfWhatHasActions()
{
    class WithMenu : public Widget
    {
    public:
        int opened = 0;

    protected:
        void contextMenuEvent(QGraphicsSceneContextMenuEvent *) override { ++opened; }
    };
    WithMenu widget;
    m_window->scene()->addItem(&widget);
    QAccessibleActionInterface *actions = QAccessible::queryAccessibleInterface(&widget)->actionInterface();
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    QAction remove;
    widget.addAction(&remove);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QCOMPARE(widget.opened, 1);
}

void TestAccessibility::takesTheNameItIsGiven()
{
    Button button(QStringLiteral("+"));
    QCOMPARE(button.accessibleName(), QStringLiteral("+"));
    button.setAccessibleName(QStringLiteral("New alarm"));
    QCOMPARE(button.accessibleName(), QStringLiteral("New alarm"));
}

void TestAccessibility::knowsWhereThingsAre()
{
    QAccessibleInterface *found = find(root(), QAccessible::Button, QStringLiteral("New alarm"));
    QVERIFY(found);
    QVERIFY(found->rect().width() >= 48);
    QVERIFY(root()->rect().contains(found->rect()));
    const QPoint at = found->rect().center();
    QCOMPARE(root()->childAt(at.x(), at.y()), found);
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
