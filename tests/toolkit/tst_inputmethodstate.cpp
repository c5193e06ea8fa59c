// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/inputmethodstate.h"
#include "platform/toolkit/keyboardroom_p.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/textedit.h"

#include <memory>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodQueryEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

/** What fields ask of a software keyboard, and the room that is made for it. */
class TestInputMethodState : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void keepsWhatWasSet();
    void knowsNothingOfASetThatThereIsNot();
    void tellsOfChangesOnly();
    void tellsTheInputMethodWhatEnterStandsFor();
    void movesUpForTheKeyboard_data();
    void movesUpForTheKeyboard();
    void movesBackWhenTheFocusLeaves();
    void stillTakesTheFingerWhereItPoints();

private:
    Qt::EnterKeyType enterKey() const;
    void raise(const QRectF &keyboard);

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<Sheet> m_sheet;
    TextEdit *m_field = nullptr;
};

namespace {

const QString keys = QStringLiteral("/keys");
const QString actionKey = QStringLiteral("actionKey");
const QString label = QStringLiteral("label");

} // namespace

void TestInputMethodState::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestInputMethodState::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_sheet = std::make_unique<Sheet>();
    m_field = new TextEdit(m_sheet->centralWidget());
    m_field->setGeometry(QRectF(20, 600, 300, 56));
    m_sheet->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestInputMethodState::cleanup()
{
    setKeyboardArea(nullptr);
    m_sheet.reset();
    m_window.reset();
}

Qt::EnterKeyType TestInputMethodState::enterKey() const
{
    QInputMethodQueryEvent query(Qt::ImEnterKeyType);
    QCoreApplication::sendEvent(m_window.get(), &query);
    return Qt::EnterKeyType(query.value(Qt::ImEnterKeyType).toInt());
}

void TestInputMethodState::raise(const QRectF &keyboard)
{
    setKeyboardArea([keyboard] { return keyboard; });
    emit QGuiApplication::inputMethod()->keyboardRectangleChanged();
}

void TestInputMethodState::keepsWhatWasSet()
{
    InputMethodState &state = InputMethodState::instance();
    const int first = state.registerAttributeExtension();
    const int second = state.registerAttributeExtension(QStringLiteral("/usr/share/keys.xml"));
    QVERIFY(first > 0);
    QVERIFY(second != first);
    state.setExtendedAttribute(first, keys, actionKey, label, QStringLiteral("Done"));
    state.setExtendedAttribute(first, keys, actionKey, QStringLiteral("highlighted"), true);
    QCOMPARE(state.extendedAttribute(first, keys, actionKey, label).toString(), QStringLiteral("Done"));
    QCOMPARE(state.extendedAttribute(first, keys, actionKey, QStringLiteral("highlighted")), QVariant(true));
    QVERIFY(!state.extendedAttribute(second, keys, actionKey, label).isValid());
    QCOMPARE(state.extensionFile(second), QStringLiteral("/usr/share/keys.xml"));
    state.unregisterAttributeExtension(first);
    QVERIFY(!state.extendedAttribute(first, keys, actionKey, label).isValid());
}

void TestInputMethodState::knowsNothingOfASetThatThereIsNot()
{
    InputMethodState &state = InputMethodState::instance();
    const QSignalSpy changed(&state, &InputMethodState::extendedAttributeChanged);
    state.setExtendedAttribute(4711, keys, actionKey, label, QStringLiteral("Done"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!state.extendedAttribute(4711, keys, actionKey, label).isValid());
}

void TestInputMethodState::tellsOfChangesOnly()
{
    InputMethodState &state = InputMethodState::instance();
    const int id = state.registerAttributeExtension();
    const QSignalSpy changed(&state, &InputMethodState::extendedAttributeChanged);
    state.setExtendedAttribute(id, keys, actionKey, label, QStringLiteral("Done"));
    state.setExtendedAttribute(id, keys, actionKey, label, QStringLiteral("Done"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().at(4).toString(), QStringLiteral("Done"));
}

void TestInputMethodState::tellsTheInputMethodWhatEnterStandsFor()
{
    InputMethodState &state = InputMethodState::instance();
    const int id = state.registerAttributeExtension();
    m_field->setFocus(Qt::OtherFocusReason);
    QCOMPARE(enterKey(), Qt::EnterKeyDefault);
    m_field->attachToolbar(id);
    QCOMPARE(m_field->attachedToolbar(), id);
    QCOMPARE(enterKey(), Qt::EnterKeyDefault);
    state.setExtendedAttribute(id, keys, actionKey, label, QStringLiteral("Done"));
    QCOMPARE(enterKey(), Qt::EnterKeyDone);
    m_field->attachToolbar(0);
    QCOMPARE(enterKey(), Qt::EnterKeyDefault);
}

void TestInputMethodState::movesUpForTheKeyboard_data()
{
    QTest::addColumn<QRectF>("field");
    QTest::addColumn<QRectF>("keyboard");
    QTest::addColumn<qreal>("top");
    const QRectF keyboard(0, 554, 480, 300);
    QTest::newRow("covered") << QRectF(20, 600, 300, 56) << keyboard << 482.0;
    QTest::newRow("partly covered") << QRectF(20, 520, 300, 56) << keyboard << 482.0;
    QTest::newRow("free") << QRectF(20, 100, 300, 56) << keyboard << 100.0;
    QTest::newRow("no keyboard") << QRectF(20, 600, 300, 56) << QRectF() << 600.0;
    QTest::newRow("a keyboard that leaves no room") << QRectF(20, 600, 300, 56) << QRectF(0, 20, 480, 834) << 16.0;
}

void TestInputMethodState::movesUpForTheKeyboard()
{
    QFETCH(QRectF, field);
    QFETCH(QRectF, keyboard);
    QFETCH(qreal, top);
    m_field->setGeometry(field);
    m_field->setFocus(Qt::OtherFocusReason);
    raise(keyboard);
    const auto seenTop = [this] { return m_window->mapFromScene(m_field->scenePos()).y(); };
    QVERIFY2(qAbs(seenTop() - top) <= 6, qPrintable(QString::number(seenTop())));
    raise({});
    QCOMPARE(seenTop(), int(field.top()));
}

void TestInputMethodState::movesBackWhenTheFocusLeaves()
{
    raise(QRectF(0, 554, 480, 300));
    QCOMPARE(m_window->sceneRect().top(), 0.0);
    m_field->setFocus(Qt::OtherFocusReason);
    QVERIFY(m_window->sceneRect().top() > 0);
    m_field->clearFocus();
    QCOMPARE(m_window->sceneRect().top(), 0.0);
}

void TestInputMethodState::stillTakesTheFingerWhereItPoints()
{
    auto *other = new TextEdit(m_sheet->centralWidget());
    other->setGeometry(QRectF(20, 500, 300, 56));
    m_field->setFocus(Qt::OtherFocusReason);
    raise(QRectF(0, 554, 480, 300));
    const QPoint place = m_window->mapFromScene(other->mapToScene(other->rect().center()));
    QVERIFY(place.y() < 500);
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, place);
    QVERIFY(other->hasFocus());
}

QTEST_MAIN(TestInputMethodState)
#include "tst_inputmethodstate.moc"
