// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/switch.h"
#include "touch.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

class TestButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isClickedByATap();
    void isNotClickedWhenTheFingerLeaves();
    void isPressedFromTheKeyboard_data();
    void isPressedFromTheKeyboard();
    void isReachedByTab();
    void togglesIfItIsCheckable();
    void ignoresInputWhileDisabled();
    void mayBeDeletedByItsClick();
    void isLargeEnoughForAFinger_data();
    void isLargeEnoughForAFinger();
    void showsItsIconAlone();
    void slidesTheKnobOfASwitch();

private:
    ApplicationWindow *m_window = nullptr;
    ApplicationPage *m_page = nullptr;
    Button *m_button = nullptr;
};

void TestButton::init()
{
    m_window = new ApplicationWindow;
    m_page = new ApplicationPage;
    m_button = new Button(QStringLiteral("Press"), m_page->centralWidget());
    m_button->setGeometry(QRectF(100, 100, 120, 60));
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestButton::cleanup()
{
    delete m_page;
    delete m_window;
}

void TestButton::isClickedByATap()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    Finger::press(*m_window, m_button, {10, 10});
    QVERIFY(m_button->isDown());
    QCOMPARE(clicked.count(), 0);
    Finger::release(*m_window, m_button, {10, 10});
    QVERIFY(!m_button->isDown());
    QCOMPARE(clicked.count(), 1);
}

void TestButton::isNotClickedWhenTheFingerLeaves()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    Finger::press(*m_window, m_button, {10, 10});
    Finger::moveTo(*m_window, m_button, {10, 150});
    QVERIFY(!m_button->isDown());
    Finger::release(*m_window, m_button, {10, 150});
    QCOMPARE(clicked.count(), 0);
    Finger::press(*m_window, m_button, {10, 10});
    Finger::moveTo(*m_window, m_button, {10, 150});
    Finger::moveTo(*m_window, m_button, {10, 20});
    Finger::release(*m_window, m_button, {10, 20});
    QCOMPARE(clicked.count(), 1);
}

void TestButton::isPressedFromTheKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void TestButton::isPressedFromTheKeyboard()
{
    QFETCH(Qt::Key, key);
    const QSignalSpy clicked(m_button, &Button::clicked);
    m_button->setFocus(Qt::TabFocusReason);
    QTest::keyPress(m_window, key);
    QVERIFY(m_button->isDown());
    QTest::keyRelease(m_window, key);
    QCOMPARE(clicked.count(), 1);
}

void TestButton::isReachedByTab()
{
    auto *second = new Button(QStringLiteral("Second"), m_page->centralWidget());
    second->setGeometry(QRectF(100, 200, 120, 60));
    QTest::keyClick(m_window, Qt::Key_Tab);
    QVERIFY(m_button->hasFocus());
    QTest::keyClick(m_window, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QTest::keyClick(m_window, Qt::Key_Backtab);
    QVERIFY(m_button->hasFocus());
}

void TestButton::togglesIfItIsCheckable()
{
    QSignalSpy clicked(m_button, &Button::clicked);
    const QSignalSpy toggled(m_button, &Button::toggled);
    m_button->setChecked(true);
    QVERIFY(!m_button->isChecked());
    m_button->setCheckable(true);
    Finger::tap(*m_window, m_button);
    QVERIFY(m_button->isChecked());
    QCOMPARE(clicked.takeFirst().at(0).toBool(), true);
    m_button->setChecked(false);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(toggled.count(), 2);
}

void TestButton::ignoresInputWhileDisabled()
{
    const QSignalSpy clicked(m_button, &Button::clicked);
    m_button->setEnabled(false);
    Finger::tap(*m_window, m_button);
    QCOMPARE(clicked.count(), 0);
}

void TestButton::mayBeDeletedByItsClick()
{
    const QPointer<Button> button = m_button;
    connect(m_button, &Button::clicked, this, [this] { delete m_button; });
    Finger::tap(*m_window, m_button);
    QVERIFY(!button);
}

void TestButton::isLargeEnoughForAFinger_data()
{
    QTest::addColumn<QString>("styleName");
    QTest::newRow("plain") << QString();
    QTest::newRow("icon") << QStringLiteral("CommonSmallIconButton");
    QTest::newRow("single") << QStringLiteral("CommonSingleButton");
    QTest::newRow("header") << QStringLiteral("CommonSheetHeaderButton");
}

void TestButton::isLargeEnoughForAFinger()
{
    QFETCH(QString, styleName);
    Button button(QStringLiteral("i"));
    button.setStyleName(styleName);
    if (styleName.contains(QLatin1String("Icon")))
        button.setIconID(QStringLiteral("icon-m-common-add"));
    const QSizeF size = button.effectiveSizeHint(Qt::MinimumSize);
    QVERIFY(size.width() >= 48);
    QVERIFY(size.height() >= 48);
}

void TestButton::showsItsIconAlone()
{
    Button button(QStringLiteral("A rather long text for a button"));
    const qreal withText = button.effectiveSizeHint(Qt::PreferredSize).width();
    button.setIconID(QStringLiteral("icon-m-common-add"));
    QVERIFY(button.effectiveSizeHint(Qt::PreferredSize).width() > withText);
    button.setViewType(QStringLiteral("icon"));
    QVERIFY(button.effectiveSizeHint(Qt::PreferredSize).width() < withText);
}

void TestButton::slidesTheKnobOfASwitch()
{
    auto *toggle = new Switch(m_page->centralWidget());
    toggle->setGeometry(QRectF(100, 300, 60, 48));
    const auto knobIsOnTheRight = [&] {
        const QImage image = m_window->grab().toImage();
        // Beside the middle of the track, where the knob lies when the switch is on.
        return image.pixelColor(100 + 44, 300 + 24) == QColor(Qt::white);
    };
    QVERIFY(!knobIsOnTheRight());
    const QSignalSpy clicked(toggle, &Button::clicked);
    Finger::tap(*m_window, toggle);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(toggle->isChecked());
    QTRY_VERIFY(knobIsOnTheRight());
}

QTEST_MAIN(TestButton)
#include "tst_button.moc"
