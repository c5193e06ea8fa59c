// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/plainscreen.h"

#include <memory>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

namespace {

class NoAnswers : public Ringer::Answers
{
public:
    void shown(quint32) override { }
    void snooze(quint32, int) override { }
    void dismiss(quint32) override { }
};

} // namespace

/** The screen of last resort can be read and answered at every size of text, whatever the alarm is called. */
class TestPlainScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void itsTextsFollowTheSizeOfText();
    void aTextThatDoesNotFitIsSmallerButNotCutOff();
    void theTimeStandsInOneLineOnANarrowScreen();
    void aLongTitleLeavesTheAnswersOnTheScreen_data();
    void aLongTitleLeavesTheAnswersOnTheScreen();

private:
    void ring(const QString &title, const QSize &size);
    int pixelSize(const char *name) const { return m_screen->findChild<QWidget *>(name)->font().pixelSize(); }

    NoAnswers m_answers;
    std::unique_ptr<Ringer::PlainScreen> m_screen;
};

void TestPlainScreen::init()
{
    qunsetenv("CLOCK_TEXT_SCALE");
}

void TestPlainScreen::ring(const QString &title, const QSize &size)
{
    m_screen = std::make_unique<Ringer::PlainScreen>();
    m_screen->setAnswers(&m_answers);
    m_screen->show({1, title, QDateTime::currentDateTimeUtc(), {}, 600});
    m_screen->setWindowState(Qt::WindowNoState);
    m_screen->resize(size);
    QVERIFY(QTest::qWaitForWindowExposed(m_screen.get()));
    QTRY_COMPARE(m_screen->size(), size);
}

void TestPlainScreen::itsTextsFollowTheSizeOfText()
{
    const QSize wide(854, 854);
    ring("Tea", wide);
    const QList<int> usual{pixelSize("time"), pixelSize("title"), pixelSize("snooze"), pixelSize("stop")};
    qputenv("CLOCK_TEXT_SCALE", "2");
    ring("Tea", wide);
    QVERIFY(pixelSize("time") > usual[0]);
    QVERIFY(pixelSize("title") > 1.6 * usual[1]);
    QVERIFY(pixelSize("snooze") > 1.6 * usual[2]);
    QVERIFY(pixelSize("stop") > 1.6 * usual[3]);
}

void TestPlainScreen::aTextThatDoesNotFitIsSmallerButNotCutOff()
{
    ring("Tea", QSize(360, 640));
    const int usual = pixelSize("stop");
    qputenv("CLOCK_TEXT_SCALE", "2");
    ring("Tea", QSize(360, 640));
    auto *stop = m_screen->findChild<QPushButton *>("stop");
    stop->setText("Stop this alarm now");
    m_screen->resize(359, 640);
    QTRY_VERIFY(stop->fontMetrics().horizontalAdvance(stop->text()) < stop->width());
    QVERIFY(pixelSize("stop") >= usual);
}

void TestPlainScreen::theTimeStandsInOneLineOnANarrowScreen()
{
    qputenv("CLOCK_TEXT_SCALE", "2");
    ring("Tea", QSize(320, 640));
    auto *time = m_screen->findChild<QLabel *>("time");
    time->setText("10:28 PM");
    m_screen->resize(319, 640);
    QTRY_COMPARE(m_screen->width(), 319);
    QTRY_VERIFY(time->fontMetrics().horizontalAdvance(time->text()) <= time->width());
    QVERIFY(time->height() < 2 * time->fontMetrics().height());
}

void TestPlainScreen::aLongTitleLeavesTheAnswersOnTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("upright") << QSize(360, 640);
    QTest::newRow("lying") << QSize(640, 480);
}

void TestPlainScreen::aLongTitleLeavesTheAnswersOnTheScreen()
{
    QFETCH(const QSize, size);
    qputenv("CLOCK_TEXT_SCALE", "2");
    ring(QString("Take the blue pills with a full glass of water before breakfast, then call. ").repeated(3), size);
    for (const char *name : {"snooze", "stop"}) {
        const QRect place = m_screen->findChild<QWidget *>(name)->geometry();
        QVERIFY2(m_screen->rect().contains(place) && place.height() >= 96, name);
    }
}

QTEST_MAIN(TestPlainScreen)
#include "tst_plainscreen.moc"
