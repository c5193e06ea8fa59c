// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/moveclock_p.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/positionmark_p.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace Touch;

namespace {

qint64 now = 0;

} // namespace

class TestPannableViewport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pansInItsDirectionsOnly_data();
    void pansInItsDirectionsOnly();
    void pansFromRightToLeft();
    void goesBackToItsStartWithoutADirection();
    void runsOnAfterAFlickAndRests();
    void doesNotRunOnAfterARest();
    void isStoppedByAPressThatClicksNothing();
    void springsBackFromBeyondItsEnd();
    void movesByTheWheel();
    void growsWithItsWidget();
    void showsWhatGetsTheFocus();
    void saysWhereOneIsWhileItMoves();
    void saysNothingWhereAllIsSeen();
    void isGoneFromWhenItsWidgetIsDeleted();

private:
    PositionMark *mark() const { return Support::itemIn<PositionMark>(m_viewport); }

    ApplicationWindow *m_window = nullptr;
    ApplicationPage *m_page = nullptr;
    PannableViewport *m_viewport = nullptr;
    Widget *m_content = nullptr;
    Button *m_button = nullptr;
};

void TestPannableViewport::init()
{
    m_window = new ApplicationWindow;
    m_page = new ApplicationPage;
    m_viewport = new PannableViewport(m_page->centralWidget());
    m_viewport->setGeometry(QRectF(0, 0, 480, 800));
    m_content = new Widget;
    m_content->setPreferredSize(900, 4000);
    m_button = new Button(QStringLiteral("Here"), m_content);
    m_button->setGeometry(QRectF(0, 0, 480, 1000));
    m_viewport->setWidget(m_content);
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QTRY_COMPARE(m_viewport->range().y(), 3200.0);
}

void TestPannableViewport::cleanup()
{
    delete m_page;
    delete m_window;
}

void TestPannableViewport::pansInItsDirectionsOnly_data()
{
    QTest::addColumn<Qt::Orientations>("directions");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("movesX");
    QTest::addColumn<bool>("movesY");
    const QPointF up(200, 200);
    const QPointF left(50, 400);
    QTest::newRow("vertical, up") << Qt::Orientations(Qt::Vertical) << up << false << true;
    QTest::newRow("vertical, left") << Qt::Orientations(Qt::Vertical) << left << false << false;
    QTest::newRow("horizontal, left") << Qt::Orientations(Qt::Horizontal) << left << true << false;
    QTest::newRow("horizontal, up") << Qt::Orientations(Qt::Horizontal) << up << false << false;
    QTest::newRow("none, up") << Qt::Orientations() << up << false << false;
}

void TestPannableViewport::pansInItsDirectionsOnly()
{
    QFETCH(Qt::Orientations, directions);
    QFETCH(QPointF, to);
    QFETCH(bool, movesX);
    QFETCH(bool, movesY);
    m_viewport->setPanDirection(directions);
    const QSignalSpy clicked(m_button, &Button::clicked);
    Finger::drag(*m_window, m_viewport, {200, 400}, to);
    QCOMPARE(m_viewport->position().x() > 100, movesX);
    QCOMPARE(m_viewport->position().y() > 100, movesY);
    // What did not become panning is still a tap on the control beneath.
    QCOMPARE(clicked.count(), movesX || movesY ? 0 : 1);
}

void TestPannableViewport::pansFromRightToLeft()
{
    m_viewport->setLayoutDirection(Qt::RightToLeft);
    m_viewport->setPanDirection(Qt::Horizontal);
    QTRY_COMPARE(m_viewport->range().x(), 420.0);
    const auto right = [this] { return m_content->geometry().right(); };
    QCOMPARE(right(), 480.0);
    // The start is on the right: a finger that goes there brings up what lies further to the left.
    Finger::drag(*m_window, m_viewport, {100, 400}, {350, 400});
    QVERIFY(m_viewport->position().x() > 100);
    QVERIFY(right() > 580);
    m_viewport->setPosition({420, 0});
    QCOMPARE(right(), 900.0);
    m_viewport->ensureVisible(QRectF(850, 0, 50, 50));
    QCOMPARE(m_viewport->position().x(), 0.0);
    m_viewport->ensureVisible(QRectF(0, 0, 50, 50));
    QCOMPARE(m_viewport->position().x(), 420.0);
}

void TestPannableViewport::goesBackToItsStartWithoutADirection()
{
    m_viewport->setPosition(QPointF(0, 500));
    QCOMPARE(m_content->y(), -500.0);
    m_viewport->setPanDirection({});
    QCOMPARE(m_viewport->position(), QPointF(0, 0));
    QCOMPARE(m_viewport->range(), QPointF(0, 0));
    m_viewport->setPosition(QPointF(0, 500));
    QCOMPARE(m_content->y(), 0.0);
}

void TestPannableViewport::runsOnAfterAFlickAndRests()
{
    Finger::drag(*m_window, m_viewport, {200, 600}, {200, 300});
    const qreal released = m_viewport->position().y();
    QVERIFY(m_viewport->isMoving());
    QTRY_VERIFY(m_viewport->position().y() > released + 50);
    QTRY_VERIFY(!m_viewport->isMoving());
    QVERIFY(m_viewport->position().y() <= m_viewport->range().y());
}

void TestPannableViewport::doesNotRunOnAfterARest()
{
    setMoveClock([] { return now; });
    const auto restore = qScopeGuard([] { setMoveClock(nullptr); });
    Finger::press(*m_window, m_viewport, {200, 600});
    now += 20;
    Finger::moveTo(*m_window, m_viewport, {200, 500});
    now += 20;
    Finger::moveTo(*m_window, m_viewport, {200, 400});
    const qreal held = m_viewport->position().y();
    now += 120;
    Finger::release(*m_window, m_viewport, {200, 400});
    QTRY_VERIFY(!m_viewport->isMoving());
    QCOMPARE(m_viewport->position().y(), held);
}

void TestPannableViewport::isStoppedByAPressThatClicksNothing()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    Finger::drag(*m_window, m_viewport, {200, 600}, {200, 300});
    QVERIFY(m_viewport->isMoving());
    Finger::press(*m_window, m_viewport, {200, 300});
    QVERIFY(!m_viewport->isMoving());
    Finger::release(*m_window, m_viewport, {200, 300});
    QCOMPARE(clicked.count(), 0);
    m_viewport->setPosition({0, 0});
    Finger::press(*m_window, m_viewport, {200, 300});
    Finger::release(*m_window, m_viewport, {200, 300});
    QCOMPARE(clicked.count(), 1);
}

void TestPannableViewport::springsBackFromBeyondItsEnd()
{
    Finger::press(*m_window, m_viewport, {200, 300});
    Finger::moveTo(*m_window, m_viewport, {200, 320});
    Finger::moveTo(*m_window, m_viewport, {200, 420});
    QCOMPARE(m_viewport->position().y(), -50.0);
    Finger::release(*m_window, m_viewport, {200, 420});
    QTRY_COMPARE(m_viewport->position().y(), 0.0);
    QVERIFY(!m_viewport->isMoving());
}

void TestPannableViewport::movesByTheWheel()
{
    const QPointF at(200, 300);
    QWheelEvent down(at, m_window->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_window->viewport(), &down);
    QTRY_VERIFY(m_viewport->position().y() > 60);
    QTRY_VERIFY(!m_viewport->isMoving());
    QVERIFY(m_viewport->position().y() < 80);
}

void TestPannableViewport::growsWithItsWidget()
{
    m_content->setPreferredSize(480, 5000);
    QTRY_COMPARE(m_viewport->range().y(), 4200.0);
    m_viewport->setPosition(QPointF(0, 4200));
    m_content->setPreferredSize(480, 1000);
    QTRY_COMPARE(m_viewport->position().y(), 200.0);
}

void TestPannableViewport::showsWhatGetsTheFocus()
{
    auto *below = new Button(QStringLiteral("Below"), m_content);
    below->setGeometry(QRectF(0, 2000, 200, 60));
    below->setFocus(Qt::TabFocusReason);
    QCOMPARE(m_viewport->position().y(), 2060.0 - 800.0);
}

void TestPannableViewport::saysWhereOneIsWhileItMoves()
{
    m_viewport->setPosition({0, 100});
    QVERIFY2(!mark(), "only a finger is told");
    m_viewport->setPosition({0, 0});
    Finger::press(*m_window, m_viewport, {200, 600});
    Finger::moveTo(*m_window, m_viewport, {200, 580});
    Finger::moveTo(*m_window, m_viewport, {200, 500});
    QVERIFY(mark() && mark()->isVisible());
    const QRectF atStart = mark()->boundingRect();
    QVERIFY(atStart.left() > 470 && atStart.right() <= 480);
    QVERIFY2(qAbs(atStart.height() - 800 * 800 / 4000) < 5, "as much of the edge as is seen of the widget");
    Finger::moveTo(*m_window, m_viewport, {200, 300});
    QVERIFY(mark()->boundingRect().top() > atStart.top());
    m_viewport->setLayoutDirection(Qt::RightToLeft);
    Finger::moveTo(*m_window, m_viewport, {200, 280});
    QVERIFY(mark()->boundingRect().right() < 10);
    Finger::release(*m_window, m_viewport, {200, 280});
    QTRY_VERIFY(!m_viewport->isMoving());
    QTRY_VERIFY(!mark()->isVisible());
    // It is in nobody's way.
    QCOMPARE(mark()->shape(), QPainterPath());
}

void TestPannableViewport::saysNothingWhereAllIsSeen()
{
    m_content->setPreferredSize(480, 500);
    m_button->setGeometry(QRectF(0, 0, 480, 500));
    QTRY_COMPARE(m_viewport->range().y(), 0.0);
    Finger::press(*m_window, m_viewport, {200, 300});
    Finger::moveTo(*m_window, m_viewport, {200, 320});
    Finger::moveTo(*m_window, m_viewport, {200, 420});
    QCOMPARE(m_viewport->position().y(), -50.0);
    QVERIFY(!mark()->isVisible());
    Finger::release(*m_window, m_viewport, {200, 420});
}

void TestPannableViewport::isGoneFromWhenItsWidgetIsDeleted()
{
    delete m_content;
    QCOMPARE(m_viewport->widget(), nullptr);
    QTRY_COMPARE(m_viewport->effectiveSizeHint(Qt::PreferredSize), QSizeF(0, 0));
}

QTEST_MAIN(TestPannableViewport)
#include "tst_pannableviewport.moc"
