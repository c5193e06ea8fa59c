// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/theme.h"

#include <memory>
#include <QTemporaryFile>
#include <QTest>

using namespace Touch;

namespace {

const auto english = QStringLiteral("Every weekday in the early morning, long before sunrise");
const auto arabic = QStringLiteral("كل يوم من أيام الأسبوع في الصباح الباكر قبل شروق الشمس بوقت طويل");

/** Where something is drawn; the picture's first pixel is its ground. */
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

/** Texts that are too long, of several lines, in either direction. */
class TestLabel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void elidesWhatDoesNotFit_data();
    void elidesWhatDoesNotFit();
    void wrapsIntoTheLinesThatItNeeds_data();
    void wrapsIntoTheLinesThatItNeeds();
    void staysOnOneLineInItsOwnWidth();
    void beginsWhereALineBegins_data();
    void beginsWhereALineBegins();
    void asksForTheWidthOfItsText_data();
    void asksForTheWidthOfItsText();
    void keepsItsWidthWhileDigitsChange();
    void isWiderWithLargerText();
    void isRatherAsDesignedThanElided();

private:
    Label *makeLabel(const QString &text, const QSizeF &size);
    QImage pictureOf(const Label *label) const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
};

void TestLabel::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(R"({"styles": {"Digits": {"tabularDigits": true, "pixelSize": 40}}})");
    file.close();
    QString error;
    QVERIFY2(Theme::instance().load(file.fileName(), &error), qPrintable(error));
}

void TestLabel::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    m_window->show();
}

void TestLabel::cleanup()
{
    m_page.reset();
    m_window.reset();
    Theme::instance().setTextScale(1);
}

Label *TestLabel::makeLabel(const QString &text, const QSizeF &size)
{
    auto *label = new Label(text, m_page->centralWidget());
    label->setGeometry(QRectF(QPointF(40, 100), size));
    return label;
}

QImage TestLabel::pictureOf(const Label *label) const
{
    QCoreApplication::processEvents();
    return m_window->grab().toImage().copy(m_window->mapFromScene(label->sceneBoundingRect()).boundingRect());
}

void TestLabel::elidesWhatDoesNotFit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << english << Qt::LeftToRight;
    QTest::newRow("from right to left") << arabic << Qt::RightToLeft;
}

void TestLabel::elidesWhatDoesNotFit()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    m_page->setLayoutDirection(direction);
    Label *label = makeLabel(text, {160, 40});
    QVERIFY(!label->showsWholeText());
    // The minimum is so much that something of it can be told.
    QVERIFY(label->effectiveSizeHint(Qt::MinimumSize).width() < 60);
    const QImage picture = pictureOf(label);
    const bool startsLeft = direction == Qt::LeftToRight;
    const auto edge = [&picture](bool isLeft, int width) {
        return inkOf(picture.copy(isLeft ? 0 : picture.width() - width, 0, width, picture.height()));
    };
    // Letters where it starts, nothing but dots where it breaks off.
    QVERIFY(edge(startsLeft, 40).height() > 10);
    QVERIFY(!edge(!startsLeft, 16).isEmpty());
    QVERIFY(edge(!startsLeft, 16).height() < 5);
    label->resize(label->effectiveSizeHint(Qt::PreferredSize));
    QVERIFY(label->showsWholeText());
}

void TestLabel::wrapsIntoTheLinesThatItNeeds_data()
{
    elidesWhatDoesNotFit_data();
}

void TestLabel::wrapsIntoTheLinesThatItNeeds()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    m_page->setLayoutDirection(direction);
    Label *label = makeLabel(text, {200, 20});
    const qreal line = label->effectiveSizeHint(Qt::PreferredSize).height();
    label->setWordWrap(true);
    const qreal height = label->effectiveSizeHint(Qt::PreferredSize, {200, -1}).height();
    QVERIFY(height >= 2 * line);
    QVERIFY(label->effectiveSizeHint(Qt::PreferredSize, {100, -1}).height() > height);
    QVERIFY(!label->showsWholeText());
    label->resize(200, height);
    QVERIFY(label->showsWholeText());
}

void TestLabel::staysOnOneLineInItsOwnWidth()
{
    const qreal line = makeLabel(english, {400, 40})->effectiveSizeHint(Qt::PreferredSize).height();
    for (const QString &text : {QString::fromUtf8("Budík za asi 12 dní"), english, arabic}) {
        for (qsizetype length = 1; length <= text.size(); ++length) {
            Label *label = makeLabel(text.left(length), {400, 40});
            label->setWordWrap(true);
            const qreal width = label->effectiveSizeHint(Qt::PreferredSize).width();
            const qreal height = label->effectiveSizeHint(Qt::PreferredSize, {width, -1}).height();
            QVERIFY2(height < 1.7 * line, qPrintable(label->text()));
            delete label;
        }
    }
}

void TestLabel::beginsWhereALineBegins_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("wraps");
    for (const bool wraps : {false, true}) {
        const char *lines = wraps ? "lines of " : "";
        QTest::addRow("%sEnglish in English", lines) << "Alarm" << Qt::LeftToRight << wraps;
        QTest::addRow("%sEnglish among Arabic", lines) << "Alarm" << Qt::RightToLeft << wraps;
        QTest::addRow("%sArabic in Arabic", lines) << QStringLiteral("منبه") << Qt::RightToLeft << wraps;
        QTest::addRow("%sArabic among English", lines) << QStringLiteral("منبه") << Qt::LeftToRight << wraps;
    }
}

void TestLabel::beginsWhereALineBegins()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, wraps);
    m_page->setLayoutDirection(direction);
    Label *label = makeLabel(text, {400, 40});
    label->setWordWrap(wraps);
    const QRect ink = inkOf(pictureOf(label));
    QVERIFY(!ink.isEmpty());
    if (direction == Qt::RightToLeft)
        QVERIFY2(ink.left() > 280 && ink.right() > 390, qPrintable(QString::number(ink.right())));
    else
        QVERIFY2(ink.left() < 10 && ink.right() < 120, qPrintable(QString::number(ink.left())));
}

void TestLabel::asksForTheWidthOfItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one font") << QStringLiteral("The alarm could not be deleted");
    QTest::newRow("Arabic") << QStringLiteral("تعذّر حذف المنبّه");
    QTest::newRow("Bengali") << QStringLiteral("অ্যালার্ম মুছে ফেলা যায়নি");
    QTest::newRow("Hindi") << QStringLiteral("अलार्म मिटाया नहीं जा सका");
    QTest::newRow("Persian") << QStringLiteral("زنگ هشدار حذف نشد");
    QTest::newRow("Thai") << QStringLiteral("ลบการปลุกไม่ได้");
}

// One that wraps would break its line otherwise.
void TestLabel::asksForTheWidthOfItsText()
{
    QFETCH(QString, text);
    Label label(text);
    label.setWordWrap(true);
    const qreal width = label.effectiveSizeHint(Qt::PreferredSize).width();
    const auto height
        = [&label](qreal w) { return label.effectiveSizeHint(Qt::PreferredSize, QSizeF(w, -1)).height(); };
    QCOMPARE(height(width), height(2 * width));
    QVERIFY(height(width / 2) > height(width));
}

void TestLabel::keepsItsWidthWhileDigitsChange()
{
    Label *label = makeLabel(QStringLiteral("11:11"), {300, 60});
    const auto width = [label] { return label->effectiveSizeHint(Qt::PreferredSize).width(); };
    const qreal narrow = width();
    label->setText(QStringLiteral("00:00"));
    QVERIFY(width() != narrow);
    label->setStyleName(QStringLiteral("Digits"));
    const qreal wide = width();
    label->setText(QStringLiteral("11:11"));
    QCOMPARE(width(), wide);
}

void TestLabel::isWiderWithLargerText()
{
    const Label *label = makeLabel(english, {400, 40});
    const qreal width = label->effectiveSizeHint(Qt::PreferredSize).width();
    Theme::instance().setTextScale(2);
    const qreal larger = label->effectiveSizeHint(Qt::PreferredSize).width() / width;
    QVERIFY2(larger > 1.9 && larger < 2.1, qPrintable(QString::number(larger)));
}

void TestLabel::isRatherAsDesignedThanElided()
{
    Label *label = makeLabel(english, {400, 80});
    const qreal designed = label->effectiveSizeHint(Qt::PreferredSize).width();
    Theme::instance().setTextScale(2);
    for (const qreal width : {designed, 1.5 * designed}) {
        label->resize(width, 80);
        QVERIFY(label->showsWholeText());
        const QRect ink = inkOf(pictureOf(label));
        QVERIFY2(ink.width() > 0.9 * width && ink.width() <= width, qPrintable(QString::number(ink.width())));
    }
    label->resize(0.9 * designed, 80);
    QVERIFY(!label->showsWholeText());
}

QTEST_MAIN(TestLabel)
#include "tst_label.moc"
