// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timepicker.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/accessibleevents_p.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"

#include <QAccessible>
#include <QTest>

namespace {

struct Told
{
    QObject *object;
    QVariant value;
};

QList<Told> told;

void listen(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ValueChanged)
        told.append(
            {event->accessibleInterface()->object(), static_cast<QAccessibleValueChangeEvent *>(event)->value()});
}

} // namespace

/** The two numbers of the time picker, as assistive technology reads and sets them. */
class TestAccessiblePicker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void handsOutAnHourAndAMinute();
    void keepsTheirOrderWhereverTheHandsAre();
    void countsWithinTheirLimits();
    void stepsOverTheEnds();
    void tellsWhatChanged();

private:
    QAccessibleInterface *part(int index) const
    {
        return QAccessible::queryAccessibleInterface(m_picker)->child(index);
    }
    QTime time() const { return {m_picker->hours(), m_picker->minutes()}; }

    Touch::ApplicationWindow m_window;
    Touch::ApplicationPage m_page;
    TimePicker *m_picker = nullptr;
};

void TestAccessiblePicker::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    Touch::Locale::setDefault(Touch::Locale(QStringLiteral("en_GB")));
    m_picker = new TimePicker(7, 5, m_page.centralWidget());
    m_picker->resize(400, 400);
    m_page.appear(&m_window);
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
    Touch::AccessibleEvents::setListener(listen);
}

void TestAccessiblePicker::init()
{
    m_picker->setHours(7);
    m_picker->setMinutes(5);
    told.clear();
}

void TestAccessiblePicker::handsOutAnHourAndAMinute()
{
    QCOMPARE(QAccessible::queryAccessibleInterface(m_picker)->childCount(), 2);
    QCOMPARE(part(0)->text(QAccessible::Name), QStringLiteral("hour"));
    QCOMPARE(part(1)->text(QAccessible::Name), QStringLiteral("minute"));
    for (const int index : {0, 1}) {
        QCOMPARE(part(index)->role(), QAccessible::SpinBox);
        QVERIFY(QAccessible::queryAccessibleInterface(m_picker)->rect().contains(part(index)->rect().center()));
    }
    QCOMPARE(part(0)->valueInterface()->currentValue().toInt(), 7);
    QCOMPARE(part(1)->valueInterface()->currentValue().toInt(), 5);
}

void TestAccessiblePicker::keepsTheirOrderWhereverTheHandsAre()
{
    for (const int hour : {0, 3, 6, 9}) {
        m_picker->setHours(hour);
        m_picker->setMinutes((hour * 5 + 30) % 60);
        QCOMPARE(part(0)->text(QAccessible::Name), QStringLiteral("hour"));
    }
}

void TestAccessiblePicker::countsWithinTheirLimits()
{
    QCOMPARE(part(0)->valueInterface()->maximumValue().toInt(), 23);
    QCOMPARE(part(1)->valueInterface()->maximumValue().toInt(), 59);
    part(0)->valueInterface()->setCurrentValue(21);
    part(1)->valueInterface()->setCurrentValue(40);
    QCOMPARE(time(), QTime(21, 40));
    part(0)->valueInterface()->setCurrentValue(99);
    part(1)->valueInterface()->setCurrentValue(-1);
    QCOMPARE(time(), QTime(23, 0));
}

void TestAccessiblePicker::stepsOverTheEnds()
{
    m_picker->setHours(23);
    m_picker->setMinutes(0);
    part(0)->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(time(), QTime(0, 0));
    part(1)->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    QCOMPARE(time(), QTime(0, 59));
}

void TestAccessiblePicker::tellsWhatChanged()
{
    m_picker->setHours(9);
    const auto last = [](const QObject *object) {
        const auto found = std::find_if(told.crbegin(), told.crend(),
                                        [object](const Told &event) { return event.object == object; });
        return found == told.crend() ? QVariant() : found->value;
    };
    QCOMPARE(last(part(0)->object()).toInt(), 9);
    QCOMPARE(last(m_picker).toInt(), 9 * 60 + 5);
    m_picker->setMinutes(45);
    QCOMPARE(last(part(1)->object()).toInt(), 45);
    told.clear();
    m_picker->setMinutes(45);
    QVERIFY(told.isEmpty());
}

QTEST_MAIN(TestAccessiblePicker)
#include "tst_accessiblepicker.moc"
