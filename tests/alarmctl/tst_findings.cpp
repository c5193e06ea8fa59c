// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/findings.h"

#include <QTest>

#include <algorithm>
#include <functional>

using Change = std::function<void(HealthFacts &)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr qint64 Now = Q_INT64_C(1774747800'000);
constexpr qint64 Due = Now + 29'520'000;

quint64 nanoseconds(qint64 milliseconds)
{
    return quint64(milliseconds) * 1000000;
}

/** A phone on which nothing is wrong, and one alarm. */
HealthFacts healthy()
{
    HealthFacts facts;
    facts.now = Now;
    facts.daemon = QVariantMap{{"events_ringing", 0u},
                               {"next_moment", nanoseconds(Due)},
                               {"armed_moment", nanoseconds(Due)},
                               {"timer_wakes", true},
                               {"timer_reason", ""},
                               {"sleep_delay", "asked"},
                               {"boot_moment", nanoseconds(Due)},
                               {"boot_ready", true},
                               {"missed_untold", 0u},
                               {"store_writable", true},
                               {"store_free", Q_INT64_C(1048576)},
                               {"store_integrity", "ok"},
                               {"store_restored", false}};
    facts.next = NextAlarm{12, Due, "Work", "/tones/own.aac", "libclockalarm"};
    facts.ringer = QVariantMap{{"output", "Loudspeaker"},
                               {"volume", 80u},
                               {"muted", false},
                               {"tone", "/tones/own.aac"},
                               {"rejected_tones", QStringList()},
                               {"rejected_reasons", QStringList()},
                               {"display", true}};
    return facts;
}

Change daemonSays(const char *name, const QVariant &value)
{
    return [=](HealthFacts &facts) { facts.daemon->insert(name, value); };
}

Change ringerSays(const char *name, const QVariant &value)
{
    return [=](HealthFacts &facts) { facts.ringer->insert(name, value); };
}

Finding findingAbout(const QList<Finding> &findings, const QString &subject)
{
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&subject](const Finding &finding) { return finding.subject == subject; });
    return found != findings.end() ? *found : Finding{Mark::Bad, {}, "no such finding"};
}

void row(const char *name, const Change &change, const char *subject, Mark mark, const char *text)
{
    QTest::newRow(name) << change << QString(subject) << mark << QString::fromUtf8(text);
}

void addRowsOfArming()
{
    row(
        "untitled", [](HealthFacts &facts) { facts.next->title.clear(); }, "next alarm", Mark::Good, "alarm 12, ");
    row(
        "not armed", [](HealthFacts &facts) { facts.daemon->remove("armed_moment"); }, "armed", Mark::Bad,
        "the timer is not armed");
    row("armed too late", daemonSays("armed_moment", nanoseconds(Due + 60'000)), "armed", Mark::Bad, " instead of ");
    row("armed too early", daemonSays("armed_moment", nanoseconds(Due - 60'000)), "armed", Mark::Bad, " instead of ");
    row("armed a little off", daemonSays("armed_moment", nanoseconds(Due + 900)), "armed", Mark::Good, "for ");
    row(
        "armed for something before",
        [](HealthFacts &facts) {
            facts.daemon->insert("armed_moment", nanoseconds(Due - 60'000));
            facts.daemon->insert("next_moment", nanoseconds(Due - 60'000));
        },
        "armed", Mark::Good, "for ");
    row(
        "the daemon waits for something later",
        [](HealthFacts &facts) {
            facts.daemon->insert("armed_moment", nanoseconds(Due + 60'000));
            facts.daemon->insert("next_moment", nanoseconds(Due + 60'000));
        },
        "armed", Mark::Bad, " instead of ");
}

void addRowsOfWaking()
{
    row(
        "sleeps through",
        [](HealthFacts &facts) {
            facts.daemon->insert("timer_wakes", false);
            facts.daemon->insert("timer_reason", "not permitted");
        },
        "wakes from sleep", Mark::Warning, "no, not permitted");
    row(
        "waking unknown", [](HealthFacts &facts) { facts.daemon->remove("timer_wakes"); }, "wakes from sleep",
        Mark::Warning, "not known");
    row("sleep is not delayed", daemonSays("sleep_delay", "refused"), "wakes from sleep", Mark::Warning, "yes, but ");
    row(
        "stays off",
        [](HealthFacts &facts) {
            facts.daemon->insert("boot_ready", false);
            facts.daemon->insert("boot_reason", "no RTC");
        },
        "wakes from off", Mark::Warning, "no, no RTC");
    row(
        "turned on for no alarm", [](HealthFacts &facts) { facts.daemon->remove("boot_moment"); }, "wakes from off",
        Mark::Warning, "no, this alarm does not ask for it");
    row("turned on for a later one", daemonSays("boot_moment", nanoseconds(Due + 60'000)), "wakes from off",
        Mark::Warning, "no, this alarm does not ask for it");
    row("turned on before", daemonSays("boot_moment", nanoseconds(Due - 60'000)), "wakes from off", Mark::Good, "yes");
    row(
        "booting unknown", [](HealthFacts &facts) { facts.daemon->remove("boot_ready"); }, "wakes from off",
        Mark::Warning, "not known");
}

void addRowsOfStoredThings()
{
    row("missed and untold", daemonSays("missed_untold", 2u), "missed alarms", Mark::Warning,
        "2 that you have not been told of");
    row(
        "misses unknown", [](HealthFacts &facts) { facts.daemon->remove("missed_untold"); }, "missed alarms",
        Mark::Good, "not known");
    row("read-only store", daemonSays("store_writable", false), "storage", Mark::Warning, "sound, but read-only");
    row("full disk", daemonSays("store_free", Q_INT64_C(4096)), "storage", Mark::Warning, "the disk is full");
    row("damaged store", daemonSays("store_integrity", "page 3 is torn"), "storage", Mark::Bad,
        "damaged: page 3 is torn");
    row("restored store", daemonSays("store_restored", true), "storage", Mark::Warning, "restored");
    row(
        "store unknown", [](HealthFacts &facts) { facts.daemon->remove("store_integrity"); }, "storage", Mark::Warning,
        "not known");
}

void addRowsOfOutput()
{
    row(
        "no ringer",
        [](HealthFacts &facts) {
            facts.ringer.reset();
            facts.ringerProblem = "not provided";
        },
        "ringer", Mark::Bad, "does not start: not provided");
    row(
        "no output",
        [](HealthFacts &facts) {
            facts.ringer->remove("output");
            facts.ringer->insert("output_reason", "nothing answers");
        },
        "sound output", Mark::Bad, "none, nothing answers");
    row("muted", ringerSays("muted", true), "sound output", Mark::Warning, "Loudspeaker, muted: is opened");
    row("volume 0", ringerSays("volume", 0u), "sound output", Mark::Warning, "volume 0 %: is raised");
    row("volume 1", ringerSays("volume", 1u), "sound output", Mark::Warning, "volume 1 %");
    row("volume 24", ringerSays("volume", 24u), "sound output", Mark::Warning, "volume 24 %");
    row("volume 25", ringerSays("volume", 25u), "sound output", Mark::Good, "volume 25 %");
    row(
        "volume unknown", [](HealthFacts &facts) { facts.ringer->remove("volume"); }, "sound output", Mark::Warning,
        "its volume is not known");
}

void addRowsOfTones()
{
    row(
        "own tone missing",
        [](HealthFacts &facts) {
            facts.ringer->insert("tone", "/tones/default.aac");
            facts.ringer->insert("rejected_tones", QStringList{"/tones/own.aac"});
            facts.ringer->insert("rejected_reasons", QStringList{"is missing"});
        },
        "tone", Mark::Warning, "/tones/own.aac is missing; heard instead: /tones/default.aac");
    row(
        "default tone missing, none of its own",
        [](HealthFacts &facts) {
            facts.next->tone.clear();
            facts.ringer->insert("tone", "beeps");
            facts.ringer->insert("rejected_tones", QStringList{"/tones/default.aac"});
            facts.ringer->insert("rejected_reasons", QStringList{"is silent"});
        },
        "tone", Mark::Good, "beeps");
    row(
        "no tone at all",
        [](HealthFacts &facts) {
            facts.ringer->remove("tone");
            facts.ringer->insert("rejected_tones", QStringList{"/tones/own.aac", "beeps"});
            facts.ringer->insert("rejected_reasons", QStringList{"is missing", "cannot be decoded"});
        },
        "tone", Mark::Bad, "none can be heard: /tones/own.aac is missing, beeps cannot be decoded");
    row("plug-in missing", ringerSays("plugin_reason", "no such file"), "ring screen", Mark::Warning,
        "the plain one, as \"libclockalarm\" does not load: no such file");
    row("no display", ringerSays("display", false), "ring screen", Mark::Warning, "heard, not seen");
}

} // namespace

class TestFindings : public QObject
{
    Q_OBJECT

private slots:
    void aHealthyPhoneHasNothingToSay();
    void eachFactIsJudged_data();
    void eachFactIsJudged();
    void withoutAnAlarmLittleMatters_data();
    void withoutAnAlarmLittleMatters();
    void twoWarningsAreCounted();
    void theFirstObstacleIsNamed();
};

void TestFindings::aHealthyPhoneHasNothingToSay()
{
    const HealthFacts facts = healthy();
    const QList<Finding> findings = findingsOf(facts);
    for (const Finding &finding : findings)
        QVERIFY2(finding.mark == Mark::Good, qPrintable(finding.subject + ": " + finding.text));
    QVERIFY2(findingAbout(findings, "next alarm").text.startsWith("\"Work\" (12), 2026-03-29 "),
             qPrintable(findingAbout(findings, "next alarm").text));
    QVERIFY(findingAbout(findings, "next alarm").text.endsWith(", in 8 h 12 min"));
    QCOMPARE(findingAbout(findings, "sound output").text, "Loudspeaker, volume 80 %");
    QCOMPARE(findingAbout(findings, "tone").text, "/tones/own.aac");
    QCOMPARE(findingAbout(findings, "ring screen").text, "libclockalarm");
    QCOMPARE(verdictOf(facts, findings).mark, Mark::Good);
    QCOMPARE(verdictOf(facts, findings).text, "Yes, the next alarm will ring.");
}

void TestFindings::eachFactIsJudged_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("subject");
    QTest::addColumn<Mark>("mark");
    QTest::addColumn<QString>("text");
    addRowsOfArming();
    addRowsOfWaking();
    addRowsOfStoredThings();
    addRowsOfOutput();
    addRowsOfTones();
}

void TestFindings::eachFactIsJudged()
{
    QFETCH(const Change, change);
    QFETCH(const QString, subject);
    QFETCH(const Mark, mark);
    QFETCH(const QString, text);
    HealthFacts facts = healthy();
    change(facts);
    const QList<Finding> findings = findingsOf(facts);
    const Finding finding = findingAbout(findings, subject);
    QCOMPARE(finding.mark, mark);
    QVERIFY2(finding.text.contains(text), qPrintable(finding.text));
    const Verdict verdict = verdictOf(facts, findings);
    QCOMPARE(verdict.mark, mark);
    if (mark == Mark::Warning)
        QCOMPARE(verdict.text, "Yes, the next alarm will ring, with 1 warning.");
    if (mark == Mark::Bad)
        QCOMPARE(verdict.text, "No, the next alarm would not be heard: " + subject + ": " + finding.text);
}

void TestFindings::withoutAnAlarmLittleMatters_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<Mark>("mark");
    QTest::addColumn<QString>("verdict");

    const auto row = [](const char *name, const Change &change, Mark mark, const char *verdict) {
        QTest::newRow(name) << change << mark << QString(verdict);
    };
    row(
        "all well", [](HealthFacts &) {}, Mark::Good, "No alarm is set.");
    row("one rings", daemonSays("events_ringing", 1u), Mark::Good, "An alarm rings now; no other is set.");
    row("muted", ringerSays("muted", true), Mark::Good, "No alarm is set.");
    row(
        "no ringer", [](HealthFacts &facts) { facts.ringer.reset(); }, Mark::Good, "No alarm is set.");
    row("damaged store", daemonSays("store_integrity", "torn"), Mark::Bad,
        "No alarm is set. But storage: damaged: torn");
    row(
        "no daemon",
        [](HealthFacts &facts) {
            facts.daemon.reset();
            facts.daemonProblem = "gone";
        },
        Mark::Bad, "No, no alarm will ring: alarm daemon: does not answer: gone");
}

void TestFindings::withoutAnAlarmLittleMatters()
{
    QFETCH(const Change, change);
    QFETCH(const Mark, mark);
    QFETCH(const QString, verdict);
    HealthFacts facts = healthy();
    facts.next.reset();
    facts.daemon->remove("next_moment");
    facts.daemon->remove("armed_moment");
    change(facts);
    const Verdict found = verdictOf(facts, findingsOf(facts));
    QCOMPARE(found.mark, mark);
    QCOMPARE(found.text, verdict);
}

void TestFindings::twoWarningsAreCounted()
{
    HealthFacts facts = healthy();
    facts.daemon->insert("timer_wakes", false);
    facts.ringer->insert("volume", 10u);
    const Verdict verdict = verdictOf(facts, findingsOf(facts));
    QCOMPARE(verdict.mark, Mark::Warning);
    QCOMPARE(verdict.text, "Yes, the next alarm will ring, with 2 warnings.");
}

void TestFindings::theFirstObstacleIsNamed()
{
    HealthFacts facts = healthy();
    facts.daemon->remove("armed_moment");
    facts.daemon->insert("timer_wakes", false);
    facts.ringer->insert("muted", true);
    const Verdict verdict = verdictOf(facts, findingsOf(facts));
    QCOMPARE(verdict.text, "No, the next alarm would not be heard: armed: the timer is not armed");
}

QTEST_GUILESS_MAIN(TestFindings)
#include "tst_findings.moc"
