// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/worldclock.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/theme.h"
#include "tests/support/look/look.h"
#include "tests/support/places.h"

#include <cmath>
#include <QTest>

using Touch::Style;
using Touch::Theme;

/**
 * All text can be read: 4.5 to 1 at least, in every style, variant and state. What is disabled is left out: its
 * faintness is what tells that it cannot be used.
 */
class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void computesTheRatio();
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void everyPartOfATimePickerCanBeRead_data();
    void everyPartOfATimePickerCanBeRead();
    void aSwitchThatIsOffStandsOut_data();
    void aSwitchThatIsOffStandsOut();

private:
    void check(const QString &what, const QColor &text, const QColor &ground) const;
};

namespace {

constexpr double leastRatio = 4.5;
/** What is not read but must be seen. */
constexpr double leastRatioOfParts = 3;

double luminance(const QColor &color)
{
    const auto linear
        = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double ratio(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

/** What is seen of a colour that may be translucent, or nothing at all. */
QColor over(const QColor &color, const QColor &ground)
{
    if (!color.isValid())
        return ground;
    const auto mix = [alpha = color.alphaF()](float above, float below) { return below + (above - below) * alpha; };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

const QMetaObject *classOf(const QString &styleName)
{
    if (styleName.contains(QLatin1String("Button")) || styleName.contains(QLatin1String("RepeatDay"))
        || styleName.startsWith(QLatin1String("RingS")))
        return &Touch::Button::staticMetaObject;
    if (styleName.contains(QLatin1String("InputField")))
        return &Touch::TextEdit::staticMetaObject;
    if (styleName.endsWith(QLatin1String("Banner")))
        return &Touch::Banner::staticMetaObject;
    return &Touch::Label::staticMetaObject;
}

bool isPicture(const QString &styleName)
{
    return styleName.endsWith(QLatin1String("Image")) || styleName == QLatin1String("DropShadow");
}

struct Ground
{
    QString name;
    QColor color;
};

/** What a text with no background of its own may lie on. */
QList<Ground> groundsFor(const QString &styleName, bool isInverted)
{
    const auto color
        = [isInverted](const char *name) { return Theme::instance().color(QLatin1String(name), isInverted); };
    if (styleName.contains(QLatin1String("bannerTitle")) || styleName == QLatin1String("BannerText"))
        return {{QStringLiteral("banner"), color("bannerBackground")}};
    if (styleName == QLatin1String("TimePickerHandle"))
        return {{QStringLiteral("handle"), color("accent")}};
    const auto pressed
        = Theme::instance().style({QStringLiteral("CommonPanel")}, {}, &Touch::Widget::staticMetaObject, isInverted);
    const QColor page = color("background");
    QList<Ground> grounds{{QStringLiteral("page"), page},
                          {QStringLiteral("surface"), color("surface")},
                          {QStringLiteral("raised"), color("raised")}};
    if (classOf(styleName) == &Touch::Label::staticMetaObject)
        grounds.append({QStringLiteral("pressed row"), over(pressed->pressedBackground, page)});
    return grounds;
}

void addVariants(const QStringList &names)
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<bool>("isInverted");
    for (const QString &name : names) {
        for (const bool isInverted : {false, true}) {
            const char *window = isInverted ? "inverted " : "";
            QTest::addRow("%s, %slight", qPrintable(name), window) << name << Theme::Variant::Light << isInverted;
            QTest::addRow("%s, %sdark", qPrintable(name), window) << name << Theme::Variant::Dark << isInverted;
        }
    }
}

} // namespace

void TestContrast::initTestCase()
{
    QVERIFY(Support::loadLook());
    // The clock widgets bring their theme with the first of them.
    const WorldClock clock;
    QString error;
    const QString ringing = Places::source(QStringLiteral("platform/ringer/clockalarm/ring.json"));
    QVERIFY2(Theme::instance().load(ringing, &error), qPrintable(error));
}

void TestContrast::computesTheRatio()
{
    QCOMPARE(std::round(ratio(Qt::white, Qt::black)), 21.0);
    QCOMPARE(std::round(ratio(QColor(0x77, 0x77, 0x77), Qt::white) * 100), 448.0);
    QCOMPARE(over(QColor(0, 0, 0, 51), Qt::white), QColor(204, 204, 204));
}

void TestContrast::check(const QString &what, const QColor &text, const QColor &ground) const
{
    const double found = ratio(over(text, ground), ground);
    QVERIFY2(found >= leastRatio,
             qPrintable(QStringLiteral("%1: %2 on %3 is %4 : 1").arg(what, text.name(), ground.name()).arg(found)));
}

void TestContrast::everyTextCanBeRead_data()
{
    // No style at all, as text, as a button and as a field.
    QStringList names{QString(), QStringLiteral("Button"), QStringLiteral("InputField")};
    names += Theme::instance().styleNames();
    names.removeIf(isPicture);
    addVariants(names);
}

void TestContrast::everyTextCanBeRead()
{
    QFETCH(QString, name);
    QFETCH(Theme::Variant, variant);
    QFETCH(bool, isInverted);
    Theme::instance().setVariant(variant);
    const QStringList parts = name.split(QLatin1Char('#'));
    const QString styleName = Theme::instance().hasStyle(name) || parts.size() > 1 ? parts[0] : QString();
    const auto style = Theme::instance().style(styleName, parts.value(1), classOf(name), isInverted);
    const auto either
        = [](const QColor &first, const QColor &otherwise) { return first.isValid() ? first : otherwise; };
    const bool isField = classOf(name) == &Touch::TextEdit::staticMetaObject;
    const QList<Ground> grounds = groundsFor(name, isInverted);
    for (const Ground &ground : grounds) {
        const QColor normal = over(style->background, ground.color);
        check(ground.name, style->color, normal);
        check(ground.name + QStringLiteral(", pressed"), either(style->pressedColor, style->color),
              over(either(style->pressedBackground, style->background), ground.color));
        if (style->checkedBackground.isValid())
            check(ground.name + QStringLiteral(", checked"), either(style->checkedColor, style->color),
                  over(style->checkedBackground, ground.color));
        if (!isField)
            continue;
        check(ground.name + QStringLiteral(", prompt"), style->promptColor, normal);
        check(ground.name + QStringLiteral(", selected"), style->checkedColor, over(style->accentColor, normal));
    }
}

void TestContrast::everyPartOfATimePickerCanBeRead_data()
{
    addVariants({QStringLiteral("TimePickerMinute"), QStringLiteral("TimePickerHour"), QStringLiteral("TimePickerHalf"),
                 QStringLiteral("TimePickerHalfNow")});
}

void TestContrast::everyPartOfATimePickerCanBeRead()
{
    QFETCH(QString, name);
    QFETCH(Theme::Variant, variant);
    QFETCH(bool, isInverted);
    Theme::instance().setVariant(variant);
    const QColor text = Theme::instance().style(name, {}, &Touch::Widget::staticMetaObject, isInverted)->color;
    for (const char *ground : {"ring", "ringInner", "ringFill", "dialFace"})
        check(QLatin1String(ground), text, Theme::instance().color(QLatin1String(ground), isInverted));
}

void TestContrast::aSwitchThatIsOffStandsOut_data()
{
    addVariants({QStringLiteral("switch")});
}

void TestContrast::aSwitchThatIsOffStandsOut()
{
    QFETCH(const Theme::Variant, variant);
    QFETCH(const bool, isInverted);
    Theme::instance().setVariant(variant);
    const QColor page = Theme::instance().color(QStringLiteral("background"), isInverted);
    const auto look = Theme::instance().style({}, {}, &Touch::Switch::staticMetaObject, isInverted);
    const QColor pill = over(look->background, page);
    QVERIFY2(ratio(pill, page) >= leastRatioOfParts, "the pill on the page");
    QVERIFY2(ratio(look->color, pill) >= leastRatioOfParts, "the knob on the pill");
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
