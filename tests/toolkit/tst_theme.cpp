// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/theme.h"
#include "tests/support/logcapture.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Touch;

class TestTheme : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void takesEachPropertyFromTheMostSpecificRule_data();
    void takesEachPropertyFromTheMostSpecificRule();
    void startsFromTheStyleItExtends();
    void givesADerivedClassItsBasesRules();
    void letsALaterFileWin();
    void givesTheApplicationTheLastWord();
    void readsAFileAgain();
    void enlargesTextByTheUsersFactor();
    void readsColours_data();
    void readsColours();
    void readsSizesMarginsAndAlignment();
    void hasTwoVariantsAndTellsOfTheChange();
    void showsAnInvertedWidgetInTheDarkVariantAlways();
    void warnsOnceAboutAnUnknownStyle();
    void refusesAFileWithAnError_data();
    void refusesAFileWithAnError();
    void keepsEverythingWhenAFileIsRefused();
    void tintsIcons();
    void warnsAboutAMissingIconOnce();

private:
    QString write(const QByteArray &text);
    void load(const QByteArray &text);

    QTemporaryDir m_folder;
    int m_files = 0;
};

QString TestTheme::write(const QByteArray &text)
{
    QFile file(m_folder.filePath(QStringLiteral("theme%1.json").arg(++m_files)));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(text);
    return file.fileName();
}

void TestTheme::load(const QByteArray &text)
{
    QString error;
    QVERIFY2(Theme::instance().load(write(text), &error), qPrintable(error));
}

void TestTheme::init()
{
    Theme::instance().setVariant(Theme::Variant::Dark);
}

void TestTheme::takesEachPropertyFromTheMostSpecificRule_data()
{
    QTest::addColumn<QString>("styleName");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<qreal>("radius");
    QTest::newRow("class only") << ""
                                << "" << 11 << 1.0;
    QTest::newRow("object name") << ""
                                 << "thing" << 12 << 1.0;
    QTest::newRow("style name over object name") << "Rule"
                                                 << "thing2" << 13 << 1.0;
    QTest::newRow("style and object name over all") << "Rule"
                                                    << "thing" << 14 << 1.0;
    QTest::newRow("another object under the style") << "Rule"
                                                    << "other" << 13 << 1.0;
    QTest::newRow("a property only the object name gives") << "Rule"
                                                           << "round" << 13 << 9.0;
}

void TestTheme::takesEachPropertyFromTheMostSpecificRule()
{
    QFETCH(QString, styleName);
    QFETCH(QString, objectName);
    load(R"({"classes": {"Label": {"pixelSize": 11, "radius": 1}},
             "styles": {"#thing": {"pixelSize": 12}, "#thing2": {"pixelSize": 99}, "#round": {"radius": 9},
                        "Rule": {"pixelSize": 13}, "Rule#thing": {"pixelSize": 14}}})");
    Label label;
    label.setStyleName(styleName);
    label.setObjectName(objectName);
    QTEST(label.style().pixelSize, "pixelSize");
    QTEST(label.style().radius, "radius");
}

void TestTheme::startsFromTheStyleItExtends()
{
    load(R"({"styles": {"Base": {"pixelSize": 30, "radius": 3}, "Derived": {"extends": "Base", "radius": 4},
                        "Loop": {"extends": "Loop", "radius": 5}}})");
    Label label;
    label.setStyleName(QStringLiteral("Derived"));
    QCOMPARE(label.style().pixelSize, 30);
    QCOMPARE(label.style().radius, 4.0);
    label.setStyleName(QStringLiteral("Loop"));
    QCOMPARE(label.style().radius, 5.0);
}

void TestTheme::givesADerivedClassItsBasesRules()
{
    load(R"({"classes": {"Button": {"spacing": 3, "pixelSize": 21}, "Switch": {"pixelSize": 22}}})");
    Button button;
    Switch toggle;
    QCOMPARE(button.style().pixelSize, 21);
    QCOMPARE(toggle.style().pixelSize, 22);
    QCOMPARE(toggle.style().spacing, 3.0);
}

void TestTheme::letsALaterFileWin()
{
    load(R"({"styles": {"Twice": {"pixelSize": 10, "radius": 2}}})");
    Label label;
    label.setStyleName(QStringLiteral("Twice"));
    QCOMPARE(label.style().pixelSize, 10);
    load(R"({"styles": {"Twice": {"pixelSize": 20}}})");
    QCOMPARE(label.style().pixelSize, 20);
    QCOMPARE(label.style().radius, 2.0);
}

void TestTheme::givesTheApplicationTheLastWord()
{
    load(R"({"styles": {"Layered": {"pixelSize": 31}, "OnTop": {"extends": "Below", "pixelSize": 33}}})");
    Label label;
    label.setStyleName(QStringLiteral("Layered"));
    QString error;
    const QString widgets = write(R"({"styles": {"Layered": {"pixelSize": 30, "radius": 6}, "Below": {"radius": 5}}})");
    QVERIFY2(Theme::instance().load(widgets, &error, Theme::Layer::Widgets), qPrintable(error));
    QCOMPARE(label.style().pixelSize, 31);
    QCOMPARE(label.style().radius, 6.0);
    label.setStyleName(QStringLiteral("OnTop"));
    QCOMPARE(label.style().radius, 5.0);
}

void TestTheme::readsAFileAgain()
{
    const QString fileName = write(R"({"styles": {"Live": {"pixelSize": 40, "radius": 2}}})");
    QString error;
    QVERIFY(Theme::instance().load(fileName, &error));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"styles": {"Live": {"pixelSize": 41}}})");
    file.close();
    QVERIFY(Theme::instance().load(fileName, &error));
    Label label;
    label.setStyleName(QStringLiteral("Live"));
    QCOMPARE(label.style().pixelSize, 41);
    QCOMPARE(label.style().radius, Label().style().radius);
}

void TestTheme::enlargesTextByTheUsersFactor()
{
    load(R"({"styles": {"Body": {"pixelSize": 16, "minimumSize": [48, 40], "scalesWithText": true},
                        "Heading": {"pixelSize": 60, "minimumSize": [48, 40]}, "Clock": {"pixelSize": 112}}})");
    const auto sizeOf = [](const char *styleName) {
        Label label;
        label.setStyleName(QString::fromLatin1(styleName));
        return label.style();
    };
    Theme::instance().setTextScale(2);
    QCOMPARE(sizeOf("Body").pixelSize, 32);
    QCOMPARE(sizeOf("Body").minimumSize, QSizeF(48, 60));
    QCOMPARE(sizeOf("Heading").pixelSize, 70);
    QCOMPARE(sizeOf("Heading").minimumSize, QSizeF(48, 40));
    QCOMPARE(sizeOf("Clock").pixelSize, 112);
    Theme::instance().setTextScale(9);
    QCOMPARE(Theme::instance().textScale(), 2.0);
    qputenv("CLOCK_TEXT_SCALE", "1.5");
    Theme::instance().setTextScale(1);
    QCOMPARE(sizeOf("Body").pixelSize, 24);
    qunsetenv("CLOCK_TEXT_SCALE");
    Theme::instance().setTextScale(1);
    QCOMPARE(sizeOf("Body").pixelSize, 16);
}

void TestTheme::readsColours_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("literal") << QByteArray("#102030") << QColor(0x10, 0x20, 0x30);
    QTest::newRow("literal with alpha") << QByteArray("#80102030") << QColor(0x10, 0x20, 0x30, 0x80);
    QTest::newRow("palette") << QByteArray("special") << QColor(1, 2, 3);
    QTest::newRow("weaker") << QByteArray("special 20%") << QColor(1, 2, 3, 51);
    QTest::newRow("nothing") << QByteArray("none") << QColor();
}

void TestTheme::readsColours()
{
    QFETCH(QByteArray, text);
    load(R"({"palettes": {"dark": {"special": "#010203"}, "light": {"special": "#010203"}},
             "styles": {"Coloured": {"background": ")"
         + text + R"("}}})");
    Label label;
    label.setStyleName(QStringLiteral("Coloured"));
    QFETCH(QColor, color);
    QCOMPARE(label.style().background.isValid(), color.isValid());
    QCOMPARE(label.style().background.rgba(), color.rgba());
}

void TestTheme::readsSizesMarginsAndAlignment()
{
    load(R"({"styles": {"Shaped": {"padding": [1, 2, 3, 4], "minimumSize": [5, -1], "alignment": "right top"}}})");
    Label label;
    label.setStyleName(QStringLiteral("Shaped"));
    QCOMPARE(label.style().padding, QMarginsF(1, 2, 3, 4));
    QCOMPARE(label.style().minimumSize, QSizeF(5, -1));
    QCOMPARE(label.alignment(), Qt::AlignRight | Qt::AlignTop);
}

void TestTheme::hasTwoVariantsAndTellsOfTheChange()
{
    const QSignalSpy changed(&Theme::instance(), &Theme::changed);
    Label label;
    const QColor dark = label.style().color;
    Theme::instance().setVariant(Theme::Variant::Light);
    QCOMPARE(changed.count(), 1);
    QVERIFY(dark.lightness() > 128);
    QVERIFY(label.style().color.lightness() < 128);
    qputenv("CLOCK_THEME", "dark");
    Theme::instance().followDesktop();
    QCOMPARE(label.style().color, dark);
    qunsetenv("CLOCK_THEME");
}

void TestTheme::showsAnInvertedWidgetInTheDarkVariantAlways()
{
    const QMetaObject *type = &Label::staticMetaObject;
    Theme::instance().setVariant(Theme::Variant::Dark);
    const QColor dark = Theme::instance().style({}, {}, type)->color;
    QCOMPARE(Theme::instance().style({}, {}, type, true)->color, dark);
    Theme::instance().setVariant(Theme::Variant::Light);
    QVERIFY(Theme::instance().style({}, {}, type)->color != dark);
    QCOMPARE(Theme::instance().style({}, {}, type, true)->color, dark);
}

void TestTheme::warnsOnceAboutAnUnknownStyle()
{
    const Support::LogCapture log;
    Label first;
    const int usual = first.style().pixelSize;
    first.setStyleName(QStringLiteral("NobodyKnowsIt"));
    QCOMPARE(first.style().pixelSize, usual);
    Button second;
    second.setStyleName(QStringLiteral("NobodyKnowsIt"));
    second.setObjectName(QStringLiteral("second"));
    QVERIFY(second.style().radius > 0);
    QCOMPARE(log.lines(QtWarningMsg), {QStringLiteral("No style is named NobodyKnowsIt")});
}

void TestTheme::refusesAFileWithAnError_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("no JSON") << QByteArray("{\n\"styles\": {\n\"A\" 1}}") << "line 3: missing name separator";
    QTest::newRow("section") << QByteArray("{\n\"looks\": {}}") << "line 2: looks: not a section of a theme";
    QTest::newRow("property") << QByteArray("{\"styles\": {\n\"A\": {\"radius\": 1},\n\"B\": {\n\"radios\": 1}}}")
                              << "line 4: styles.B.radios: unknown property";
    QTest::newRow("kind of value") << QByteArray("{\"styles\": {\n\"A\": {\"radius\": \"big\"}}}")
                                   << "line 2: styles.A.radius: wrong type of value";
    QTest::newRow("colour") << QByteArray("{\"styles\": {\"A\": {\n\n\"color\": \"mauve-ish\"}}}")
                            << "line 3: styles.A.color: \"mauve-ish\" is no colour of the light palette";
    QTest::newRow("strength") << QByteArray("{\"styles\": {\"A\": {\"color\": \"text 120%\"}}}")
                              << "line 1: styles.A.color: \"text 120%\" is no colour of the light palette";
    QTest::newRow("margins") << QByteArray("{\"styles\": {\"A\": {\"padding\": [1, 2]}}}")
                             << "line 1: styles.A.padding: wrong type of value";
    QTest::newRow("a style named in a value first")
        << QByteArray("{\"styles\": {\"A\": {\"extends\": \"B\"},\n\"B\": {\n\"radius\": true}}}")
        << "line 3: styles.B.radius: wrong type of value";
    QTest::newRow("the same key elsewhere")
        << QByteArray("{\"styles\": {\"A\": {\"color\": \"text\"},\n\"B\": {\"color\": 7}}}")
        << "line 2: styles.B.color: wrong type of value";
    QTest::newRow("number") << QByteArray("{\"styles\": {\"A\": {\n\"weight\": -3}}}")
                            << "line 2: styles.A.weight: number out of range";
    QTest::newRow("number in a list") << QByteArray("{\"classes\": {\"A\": {\n\"padding\": [1, 2, -3, 4]}}}")
                                      << "line 2: classes.A.padding: number out of range";
    QTest::newRow("word in a list") << QByteArray("{\"styles\": {\"A\": {\n\"iconSize\": [1, \"2\"]}}}")
                                    << "line 2: styles.A.iconSize: wrong type of value";
    QTest::newRow("flag") << QByteArray("{\"styles\": {\"A\": {\n\"scalesWithText\": 1}}}")
                          << "line 2: styles.A.scalesWithText: wrong type of value";
    QTest::newRow("alignment") << QByteArray("{\"styles\": {\"A\": {\"alignment\": \"left middle\"}}}")
                               << "line 1: styles.A.alignment: \"left middle\" is no alignment";
    QTest::newRow("no base") << QByteArray("{\"styles\": {\"A\": {\"extends\": 1}}}")
                             << "line 1: styles.A.extends: wrong type of value";
    QTest::newRow("key given twice") << QByteArray("{\"styles\": {\"A\": {\"radius\": 1},\n\"A\": {}}}")
                                     << "line 2: styles.A: given twice";
    QTest::newRow("colour of one palette only") << QByteArray(
        "{\"palettes\": {\"light\": {\"dusk\": \"#111111\"}},\n\"styles\": {\"A\": {\"color\": \"dusk\"}}}")
                                                << "line 2: styles.A.color: \"dusk\" is no colour of the dark palette";
    QTest::newRow("no object") << QByteArray("[]") << "line 1: not an object";
    QTest::newRow("rule") << QByteArray("{\"styles\": {\n\"A\": 1}}") << "line 2: styles.A: not a rule";
    QTest::newRow("palette") << QByteArray("{\"palettes\": {\"dark\": 1}}")
                             << "line 1: palettes.dark: neither a light nor a dark palette";
    QTest::newRow("variant") << QByteArray("{\"palettes\": {\n\"sepia\": {}}}")
                             << "line 2: palettes.sepia: neither a light nor a dark palette";
    QTest::newRow("palette colour") << QByteArray("{\"palettes\": {\"dark\": {\n\"text\": \"bright\"}}}")
                                    << "line 2: palettes.dark.text: not a colour";
}

void TestTheme::refusesAFileWithAnError()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    const QString file = write(text);
    QString found;
    QVERIFY(!Theme::instance().load(file, &found));
    QCOMPARE(found, QFileInfo(file).fileName() + QStringLiteral(": ") + error);
}

void TestTheme::keepsEverythingWhenAFileIsRefused()
{
    load(R"({"styles": {"Kept": {"radius": 7}}})");
    QString error;
    QVERIFY(!Theme::instance().load(write(R"({"styles": {"Kept": {"radius": 8}, "Wrong": {"radius": "x"}}})"), &error));
    QVERIFY(!Theme::instance().load(m_folder.filePath(QStringLiteral("missing.json")), &error));
    QVERIFY(error.contains(QStringLiteral("missing.json")));
    Label label;
    label.setStyleName(QStringLiteral("Kept"));
    QCOMPARE(label.style().radius, 7.0);
}

void TestTheme::tintsIcons()
{
    const QColor color(10, 200, 30);
    const QPixmap icon = Theme::instance().icon(QStringLiteral("icon-m-common-add"), QSize(24, 24), color, 2);
    QCOMPARE(icon.size(), QSize(48, 48));
    QCOMPARE(icon.devicePixelRatio(), 2.0);
    const QImage image = icon.toImage();
    // The strokes of the plus cross in its middle; its corners are empty.
    QCOMPARE(image.pixelColor(24, 24), color);
    QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
    QCOMPARE(Theme::instance().icon(QStringLiteral("icon-m-common-add"), QSize(24, 24), color, 2).cacheKey(),
             icon.cacheKey());
}

void TestTheme::warnsAboutAMissingIconOnce()
{
    const Support::LogCapture log;
    for (int i = 0; i < 2; ++i)
        QVERIFY(Theme::instance().icon(QStringLiteral("icon-of-nothing"), QSize(24, 24), Qt::black).isNull());
    QCOMPARE(log.lines(QtWarningMsg), {QStringLiteral("There is no icon icon-of-nothing")});
}

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
