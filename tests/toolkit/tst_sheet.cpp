// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/stylablewidget.h"
#include "touch.h"

#include <memory>
#include <QAction>
#include <QTest>

using namespace Touch;

class TestSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void givesItsContentTheRoomBelowItsHeader();
    void squeezesWhatCanBeSqueezed();
    void pansWhatCannot();
    void growsWithItsContent();

private:
    qreal top() const { return m_sheet->headerWidget()->geometry().bottom(); }

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<Sheet> m_sheet;
    StylableWidget *m_block = nullptr; ///< fills most of the sheet
    Button *m_button = nullptr;        ///< the last thing on it
    QAction m_cancel;
};

void TestSheet::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    m_cancel.setText(QStringLiteral("Cancel"));
}

void TestSheet::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_sheet = std::make_unique<Sheet>();
    auto *header = new BasicSheetHeader;
    header->setNegativeAction(&m_cancel);
    m_sheet->setHeaderWidget(header);
    m_block = new StylableWidget;
    m_button = new Button(QStringLiteral("Delete"));
    auto *column = new LinearLayoutPolicy(new Layout(m_sheet->centralWidget()), Qt::Vertical);
    column->addItem(m_block);
    column->addItem(m_button);
    m_sheet->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestSheet::cleanup()
{
    m_sheet.reset();
    m_window.reset();
}

void TestSheet::givesItsContentTheRoomBelowItsHeader()
{
    QTRY_COMPARE(m_sheet->centralWidget()->sceneBoundingRect(), QRectF(0, top(), 480, 854 - top()));
}

void TestSheet::squeezesWhatCanBeSqueezed()
{
    m_block->setPreferredHeight(2000);
    m_block->setMinimumHeight(10);
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    Finger::drag(*m_window, m_sheet.get(), {240, 600}, {240, 200});
    QCOMPARE(m_sheet->centralWidget()->sceneBoundingRect().top(), top());
}

void TestSheet::pansWhatCannot()
{
    m_block->setMinimumHeight(900);
    QTRY_VERIFY(m_button->sceneBoundingRect().top() > 854);
    Finger::drag(*m_window, m_sheet.get(), {240, 700}, {240, 300});
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    QVERIFY(m_sheet->headerWidget()->isVisible());
    QCOMPARE(m_sheet->headerWidget()->sceneBoundingRect().top(), 0.0);
}

void TestSheet::growsWithItsContent()
{
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    m_block->setMinimumHeight(900);
    QTRY_VERIFY(m_button->sceneBoundingRect().bottom() > 854);
    m_button->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    QVERIFY(m_sheet->centralWidget()->sceneBoundingRect().top() < top());
}

QTEST_MAIN(TestSheet)
#include "tst_sheet.moc"
