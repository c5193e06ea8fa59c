// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/dialog.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/pannableviewport.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <memory>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

class TestComboBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void choosesNothingAtFirst();
    void showsWhatIsChosen();
    void choosesNothingForAnIndexThatThereIsNot();
    void opensItsListAtATap();
    void marksWhatIsChosen();
    void choosesByATap();
    void choosesByTheKeyboard();
    void tellsOfAChoiceThatChangesNothing();
    void closesItsListOnRequestAndOnEscape();
    void pansToWhatIsChosen();
    void clearsItsItems();
    void takesItsListWithIt();
    void goesWithItsWindowWhileItIsOpen();
    void hasItsArrowInTheMiddle();

private:
    Dialog *popup() const { return qobject_cast<Dialog *>(m_window->topSceneWindow()); }
    QList<Button *> rows() const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    ComboBox *m_box = nullptr;
};

void TestComboBox::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestComboBox::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    auto *column = new LinearLayoutPolicy(new Layout(m_page->centralWidget()), Qt::Vertical);
    m_box = new ComboBox;
    m_box->setTitle(QStringLiteral("Snooze"));
    for (const int minutes : {5, 10, 15, 20, 30})
        m_box->addItem(QStringLiteral("%1 minutes").arg(minutes));
    column->addItem(m_box);
    column->addStretch();
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_box->size().width() > 0);
}

void TestComboBox::cleanup()
{
    m_page.reset();
    m_window.reset();
}

QList<Button *> TestComboBox::rows() const
{
    QList<Button *> found;
    const QList<QGraphicsItem *> children = popup()->centralWidget()->childItems();
    for (QGraphicsItem *child : children)
        found.append(qobject_cast<Button *>(child->toGraphicsObject()));
    return found;
}

void TestComboBox::choosesNothingAtFirst()
{
    QCOMPARE(m_box->count(), 5);
    QCOMPARE(m_box->currentIndex(), -1);
    QCOMPARE(m_box->currentText(), QString());
    QVERIFY(m_box->imageWidget()->isVisible());
    QVERIFY(m_box->imageWidget()->geometry().left() > m_box->titleLabel()->geometry().right());
}

void TestComboBox::showsWhatIsChosen()
{
    const QSignalSpy changed(m_box, &ComboBox::currentIndexChanged);
    m_box->setCurrentIndex(1);
    m_box->setCurrentIndex(1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toInt(), 1);
    QCOMPARE(m_box->subtitleLabel()->text(), QStringLiteral("10 minutes"));
    QCOMPARE(m_box->accessibleName(), QStringLiteral("Snooze, 10 minutes"));
}

void TestComboBox::choosesNothingForAnIndexThatThereIsNot()
{
    m_box->setCurrentIndex(4);
    m_box->setCurrentIndex(5);
    QCOMPARE(m_box->currentIndex(), -1);
    QCOMPARE(m_box->subtitle(), QString());
    m_box->setCurrentIndex(-7);
    QCOMPARE(m_box->currentIndex(), -1);
}

void TestComboBox::opensItsListAtATap()
{
    QVERIFY(!m_box->isPopupOpen());
    Finger::tap(*m_window, m_box);
    QVERIFY(m_box->isPopupOpen());
    QCOMPARE(popup()->title(), QStringLiteral("Snooze"));
    QCOMPARE(rows().size(), 5);
    QCOMPARE(rows().at(4)->text(), QStringLiteral("30 minutes"));
}

void TestComboBox::marksWhatIsChosen()
{
    m_box->setCurrentIndex(2);
    m_box->showPopup();
    for (int i = 0; i < 5; ++i)
        QCOMPARE(rows().at(i)->isChecked(), i == 2);
    QVERIFY(rows().at(2)->hasFocus());
}

void TestComboBox::choosesByATap()
{
    const QSignalSpy activated(m_box, &ComboBox::activated);
    m_box->showPopup();
    Finger::tap(*m_window, rows().at(3));
    QCOMPARE(m_box->currentIndex(), 3);
    QCOMPARE(activated.count(), 1);
    QVERIFY(!m_box->isPopupOpen());
}

void TestComboBox::choosesByTheKeyboard()
{
    m_box->setCurrentIndex(0);
    m_box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Return);
    QVERIFY(m_box->isPopupOpen());
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Up);
    QTest::keyClick(m_window.get(), Qt::Key_Return);
    QCOMPARE(m_box->currentIndex(), 1);
    QVERIFY(m_box->hasFocus());
}

void TestComboBox::tellsOfAChoiceThatChangesNothing()
{
    m_box->setCurrentIndex(3);
    const QSignalSpy changed(m_box, &ComboBox::currentIndexChanged);
    const QSignalSpy activated(m_box, &ComboBox::activated);
    m_box->showPopup();
    Finger::tap(*m_window, rows().at(3));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(m_box->currentIndex(), 3);
}

void TestComboBox::closesItsListOnRequestAndOnEscape()
{
    m_box->dismissPopup();
    m_box->showPopup();
    m_box->dismissPopup();
    QVERIFY(!m_box->isPopupOpen());
    m_box->showPopup();
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_box->isPopupOpen());
    QCOMPARE(m_box->currentIndex(), -1);
    QVERIFY(m_window->isVisible());
}

void TestComboBox::pansToWhatIsChosen()
{
    for (int i = 0; i < 40; ++i)
        m_box->addItem(QString::number(i));
    m_box->setCurrentIndex(40);
    m_box->showPopup();
    const auto *viewport = Support::itemIn<PannableViewport>(popup());
    QTRY_VERIFY(viewport->sceneBoundingRect().contains(rows().at(40)->sceneBoundingRect()));
}

void TestComboBox::clearsItsItems()
{
    m_box->setCurrentIndex(2);
    m_box->showPopup();
    m_box->clear();
    QCOMPARE(m_box->count(), 0);
    QCOMPARE(m_box->currentIndex(), -1);
    QVERIFY(!m_box->isPopupOpen());
    m_box->showPopup();
    QVERIFY2(!m_box->isPopupOpen(), "there is nothing to choose from");
}

void TestComboBox::takesItsListWithIt()
{
    m_box->showPopup();
    delete m_box;
    QVERIFY(!popup());
}

void TestComboBox::goesWithItsWindowWhileItIsOpen()
{
    auto window = std::make_unique<ApplicationWindow>();
    auto *page = new ApplicationPage;
    const QPointer<ComboBox> box = new ComboBox(page->centralWidget());
    box->addItem(QStringLiteral("5 minutes"));
    page->appear(window.get(), SceneWindow::DestroyWhenDone);
    window->show();
    box->showPopup();
    const QPointer<SceneWindow> list = window->topSceneWindow();
    QVERIFY(box->isPopupOpen() && list != page);
    window.reset();
    QVERIFY(!box);
    QVERIFY(!list);
}

void TestComboBox::hasItsArrowInTheMiddle()
{
    const ImageWidget *arrow = m_box->imageWidget();
    for (const qreal height : {64.0, 100.0}) {
        m_box->setPreferredHeight(height);
        QTRY_COMPARE(m_box->size().height(), height);
        QCOMPARE(arrow->sceneBoundingRect().center().y(), m_box->sceneBoundingRect().center().y());
    }
}

QTEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
