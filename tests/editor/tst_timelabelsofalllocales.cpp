// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/timelabels.h"
#include "platform/locale/locale.h"

#include <QDateTime>
#include <QTest>

#include <unicode/dtptngen.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>

#include <memory>

using Touch::Locale;
using Arrangement = TimeLabels::Arrangement;

namespace {

// One locale and more for every script, numbering, hour cycle and place of the marker that ICU knows.
constexpr const char *LocaleNames[]
    = {"af_ZA", "am_ET", "ar_EG", "ar_MA", "ar_SA",      "as_IN", "az_AZ", "be_BY",  "bg_BG", "bn_BD",  "bs_BA",
       "ca_ES", "cs_CZ", "cy_GB", "da_DK", "de_AT",      "de_DE", "el_GR", "en_AU",  "en_CA", "en_GB",  "en_IN",
       "en_US", "es_ES", "es_MX", "et_EE", "eu_ES",      "fa_AF", "fa_IR", "ckb_IR", "fi_FI", "fil_PH", "fr_CH",
       "fr_FR", "ga_IE", "gl_ES", "gu_IN", "he_IL",      "hi_IN", "hr_HR", "hu_HU",  "hy_AM", "id_ID",  "is_IS",
       "it_IT", "ja_JP", "ka_GE", "kk_KZ", "km_KH",      "kn_IN", "ko_KR", "ky_KG",  "lo_LA", "lt_LT",  "lv_LV",
       "mk_MK", "ml_IN", "mn_MN", "mr_IN", "ms_MY",      "my_MM", "nb_NO", "ne_NP",  "nl_NL", "or_IN",  "pa_IN",
       "pl_PL", "ps_AF", "pt_BR", "pt_PT", "ro_RO",      "ru_RU", "si_LK", "sk_SK",  "sl_SI", "sq_AL",  "sr_Latn_RS",
       "sr_RS", "sv_SE", "sw_TZ", "ta_IN", "te_IN",      "th_TH", "tr_TR", "uk_UA",  "ur_PK", "uz_UZ",  "vi_VN",
       "zh_CN", "zh_HK", "zh_TW", "zu_ZA", "ff_Adlm_GN", "ccp_BD"};

const QList<QTime> Times{{0, 0}, {0, 5}, {8, 5}, {12, 0}, {13, 5}, {23, 59}};

QString text(const icu::UnicodeString &string)
{
    return QString::fromUtf16(string.getBuffer(), string.length());
}

/** What ICU itself says of one locale. */
class Icu
{
public:
    explicit Icu(const char *name)
        : m_locale(name)
        , m_numbers(icu::NumberFormat::createInstance(m_locale, m_status))
    {
        m_numbers->setMinimumIntegerDigits(2);
        m_numbers->setGroupingUsed(false);
        const std::unique_ptr<icu::DateTimePatternGenerator> generator(
            icu::DateTimePatternGenerator::createInstance(m_locale, m_status));
        m_pattern = text(generator->getBestPattern("hms", m_status));
    }

    bool isValid() const { return U_SUCCESS(m_status); }
    QString digits(int number) const
    {
        icu::UnicodeString result;
        return text(m_numbers->format(number, result));
    }
    /** In the cycle of the locale's own pattern, in which noon is 12 or 0. */
    int hourOfHalf(int hour) const { return m_pattern.contains('K') ? hour % 12 : hour % 12 == 0 ? 12 : hour % 12; }
    QString marker(const QTime &time) const
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::SimpleDateFormat format("a", m_locale, status);
        format.adoptTimeZone(icu::TimeZone::createTimeZone("GMT"));
        icu::UnicodeString result;
        return text(format.format(UDate(time.msecsSinceStartOfDay()), result));
    }
    bool isMarkerFirst() const { return QString("abB").contains(m_pattern.at(0)); }

private:
    UErrorCode m_status = U_ZERO_ERROR;
    icu::Locale m_locale;
    std::unique_ptr<icu::NumberFormat> m_numbers;
    QString m_pattern;
};

TimeLabels labelsOf(const char *name, Locale::TimeFormat24h format, const QTime &time)
{
    Locale locale(name);
    locale.setTimeFormat24h(format);
    return timeLabels(locale, QDateTime(QDate(2011, 2, 23), time));
}

} // namespace

class TestTimeLabelsOfAllLocales : public QObject
{
    Q_OBJECT

private slots:
    void areIcusInTwentyFourHours_data() { addLocales(); }
    void areIcusInTwentyFourHours();
    void areIcusInTwelveHours_data() { addLocales(); }
    void areIcusInTwelveHours();
    void wordsBetweenTheNumbersEmptyTheMinute_data();
    void wordsBetweenTheNumbersEmptyTheMinute();

private:
    static void addLocales();
};

void TestTimeLabelsOfAllLocales::addLocales()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : LocaleNames)
        QTest::newRow(name) << QByteArray(name);
}

void TestTimeLabelsOfAllLocales::areIcusInTwentyFourHours()
{
    QFETCH(QByteArray, name);
    const Icu icu(name);
    QVERIFY(icu.isValid());
    for (const QTime &time : Times) {
        const TimeLabels labels = labelsOf(name, Locale::TwentyFourHour, time);
        QCOMPARE(labels.hour, icu.digits(time.hour()));
        QCOMPARE(labels.minute, icu.digits(time.minute()));
        QCOMPARE(labels.arrangement, Arrangement::TwentyFourHours);
        QVERIFY(!labels.marker);
    }
}

void TestTimeLabelsOfAllLocales::areIcusInTwelveHours()
{
    QFETCH(QByteArray, name);
    const Icu icu(name);
    QVERIFY(icu.isValid());
    for (const QTime &time : Times) {
        const TimeLabels labels = labelsOf(name, Locale::TwelveHour, time);
        QCOMPARE(labels.hour, icu.digits(icu.hourOfHalf(time.hour())));
        QCOMPARE(labels.minute, icu.digits(time.minute()));
        const QString marker = icu.marker(time);
        QCOMPARE(labels.marker->trimmed(), marker);
        const bool isFirst = icu.isMarkerFirst() || Locale::directionForText(marker) == Qt::RightToLeft;
        QCOMPARE(labels.arrangement, isFirst ? Arrangement::MarkerBefore : Arrangement::MarkerAfter);
        QVERIFY2(isFirst || *labels.marker == ' ' + marker, qPrintable(*labels.marker));
    }
}

void TestTimeLabelsOfAllLocales::wordsBetweenTheNumbersEmptyTheMinute_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("hour");
    QTest::newRow("24 hours") << int(Locale::TwentyFourHour) << "13";
    QTest::newRow("12 hours") << int(Locale::TwelveHour) << "01";
}

void TestTimeLabelsOfAllLocales::wordsBetweenTheNumbersEmptyTheMinute()
{
    QFETCH(int, format);
    // "13 h 05": what follows the first character that is no digit is the next one, not the minute.
    const TimeLabels labels = labelsOf("fr_CA", Locale::TimeFormat24h(format), QTime(13, 5));
    QTEST(labels.hour, "hour");
    QCOMPARE(labels.minute, QString());
}

QTEST_GUILESS_MAIN(TestTimeLabelsOfAllLocales)
#include "tst_timelabelsofalllocales.moc"
