// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/findings.h"

#include "alarmctl/texts.h"

#include <algorithm>

namespace {

// The timer is read back some time after it was armed, and tells its remaining time.
constexpr qint64 ArmingTolerance = 2000;
constexpr uint QuietVolume = 25;

constexpr auto DaemonSubject = "alarm daemon";
constexpr auto StorageSubject = "storage";
constexpr qint64 EnoughRoom = 1024 * 1024; // bytes
const auto NotKnown = QStringLiteral("not known");

std::optional<qint64> momentIn(const QVariantMap &facts, const char *name)
{
    const auto fact = facts.constFind(QLatin1String(name));
    if (fact == facts.cend())
        return {};
    return millisecondsOf(fact->toULongLong());
}

QString textIn(const QVariantMap &facts, const char *name)
{
    return facts.value(QLatin1String(name)).toString();
}

Finding nextAlarm(const HealthFacts &facts)
{
    const QString subject = "next alarm";
    if (!facts.next)
        return {Mark::Good, subject, "none is set"};
    return {Mark::Good, subject,
            QStringLiteral("%1, %2, in %3")
                .arg(alarmText(facts.next->cookie, facts.next->title), localMoment(facts.next->moment),
                     durationText(facts.next->moment - facts.now))};
}

Finding arming(const QVariantMap &daemon, qint64 moment)
{
    const QString subject = "armed";
    const auto armed = momentIn(daemon, "armed_moment");
    if (!armed)
        return {Mark::Bad, subject, "the timer is not armed"};
    // It may wait for something else before, such as the end of a ring.
    const qint64 wanted = std::min(momentIn(daemon, "next_moment").value_or(moment), moment);
    const Mark mark = std::abs(*armed - wanted) <= ArmingTolerance ? Mark::Good : Mark::Bad;
    const QString text = "for " + localMoment(*armed);
    return {mark, subject, mark == Mark::Good ? text : text + " instead of " + localMoment(wanted)};
}

Finding waking(const QVariantMap &daemon)
{
    const QString subject = "wakes from sleep";
    const auto wakes = daemon.constFind("timer_wakes");
    if (wakes == daemon.cend())
        return {Mark::Warning, subject, NotKnown};
    if (!wakes->toBool())
        return {Mark::Warning, subject, "no, " + textIn(daemon, "timer_reason")};
    if (textIn(daemon, "sleep_delay") == "refused")
        return {Mark::Warning, subject, "yes, but the login manager refuses to delay sleep while an alarm is set"};
    return {Mark::Good, subject, "yes"};
}

Finding booting(const QVariantMap &daemon, qint64 moment)
{
    const QString subject = "wakes from off";
    if (!daemon.contains("boot_ready"))
        return {Mark::Warning, subject, NotKnown};
    const auto boot = momentIn(daemon, "boot_moment");
    if (!boot || *boot > moment)
        return {Mark::Warning, subject, "no, this alarm does not ask for it"};
    if (!daemon.value("boot_ready").toBool())
        return {Mark::Warning, subject, "no, " + textIn(daemon, "boot_reason")};
    return {Mark::Good, subject, "yes"};
}

Finding misses(const QVariantMap &daemon)
{
    const QString subject = "missed alarms";
    const uint untold = daemon.value("missed_untold").toUInt();
    if (untold > 0)
        return {Mark::Warning, subject, QStringLiteral("%1 that you have not been told of").arg(untold)};
    return {Mark::Good, subject, daemon.contains("missed_untold") ? QStringLiteral("none untold") : NotKnown};
}

Finding storage(const QVariantMap &daemon)
{
    const QString integrity = textIn(daemon, "store_integrity");
    if (integrity.isEmpty())
        return {Mark::Warning, StorageSubject, NotKnown};
    if (integrity != "ok")
        return {Mark::Bad, StorageSubject, "damaged: " + integrity};
    if (daemon.value("store_restored").toBool())
        return {Mark::Warning, StorageSubject, "sound, but was damaged and has been restored from a snapshot"};
    if (!daemon.value("store_writable", true).toBool())
        return {Mark::Warning, StorageSubject, "sound, but read-only: no change is taken"};
    if (daemon.value("store_free", EnoughRoom).toLongLong() < EnoughRoom)
        return {Mark::Warning, StorageSubject, "sound, but the disk is full: a change may not be taken"};
    return {Mark::Good, StorageSubject, "sound"};
}

Finding soundOutput(const QVariantMap &ringer)
{
    const QString subject = "sound output";
    const QString name = textIn(ringer, "output");
    if (name.isEmpty())
        return {Mark::Bad, subject, "none, " + textIn(ringer, "output_reason")};
    if (ringer.value("muted").toBool())
        return {Mark::Warning, subject, name + ", muted: is opened while an alarm rings"};
    if (!ringer.contains("volume"))
        return {Mark::Warning, subject, name + ", its volume is not known"};
    const uint volume = ringer.value("volume").toUInt();
    const QString text = QStringLiteral("%1, volume %2 %").arg(name).arg(volume);
    if (volume < QuietVolume)
        return {Mark::Warning, subject, text + ": is raised while an alarm rings"};
    return {Mark::Good, subject, text};
}

Finding tone(const QVariantMap &ringer, const QString &wanted)
{
    const QString subject = "tone";
    const QString heard = textIn(ringer, "tone");
    const QStringList rejected = ringer.value("rejected_tones").toStringList();
    const QStringList reasons = ringer.value("rejected_reasons").toStringList();
    QStringList failures;
    for (qsizetype index = 0; index < rejected.size(); ++index)
        failures.append(rejected.at(index) + ' ' + reasons.value(index));
    if (heard.isEmpty())
        return {Mark::Bad, subject, "none can be heard: " + failures.join(", ")};
    // Where the alarm asks for none of its own, nobody misses the ones that come after.
    if (failures.isEmpty() || wanted.isEmpty())
        return {Mark::Good, subject, heard};
    return {Mark::Warning, subject, failures.join(", ") + "; heard instead: " + heard};
}

Finding screen(const QVariantMap &ringer, const QString &plugin)
{
    const QString subject = "ring screen";
    if (ringer.contains("plugin_reason"))
        return {
            Mark::Warning, subject,
            QStringLiteral("the plain one, as \"%1\" does not load: %2").arg(plugin, textIn(ringer, "plugin_reason"))};
    if (!ringer.value("display", true).toBool())
        return {Mark::Warning, subject, "no display: alarms are heard, not seen"};
    return {Mark::Good, subject, plugin};
}

void addRinger(const HealthFacts &facts, QList<Finding> &findings)
{
    const QString subject = "ringer";
    if (!facts.ringer) {
        findings.append({Mark::Bad, subject, "does not start: " + facts.ringerProblem});
        return;
    }
    findings.append(soundOutput(*facts.ringer));
    findings.append(tone(*facts.ringer, facts.next ? facts.next->tone : QString()));
    findings.append({Mark::Good, subject, "installed"});
    if (facts.next)
        findings.append(screen(*facts.ringer, facts.next->plugin));
}

QString withoutAlarm(const HealthFacts &facts)
{
    const uint ringing = facts.daemon->value("events_ringing").toUInt();
    return ringing > 0 ? QStringLiteral("An alarm rings now; no other is set.") : QStringLiteral("No alarm is set.");
}

QString brief(const Finding &finding)
{
    return finding.subject + ": " + finding.text;
}

} // namespace

QList<Finding> findingsOf(const HealthFacts &facts)
{
    QList<Finding> findings;
    if (facts.daemon) {
        findings.append(nextAlarm(facts));
        if (facts.next)
            findings.append(arming(*facts.daemon, facts.next->moment));
        findings.append(waking(*facts.daemon));
        if (facts.next)
            findings.append(booting(*facts.daemon, facts.next->moment));
    } else {
        findings.append({Mark::Bad, DaemonSubject, "does not answer: " + facts.daemonProblem});
    }
    addRinger(facts, findings);
    if (facts.daemon) {
        findings.append(storage(*facts.daemon));
        findings.append(misses(*facts.daemon));
    }
    return findings;
}

Verdict verdictOf(const HealthFacts &facts, const QList<Finding> &findings)
{
    const auto counts = [&facts](const Finding &finding) {
        return finding.mark == Mark::Bad
            && (facts.next || finding.subject == DaemonSubject || finding.subject == StorageSubject);
    };
    const auto obstacle = std::find_if(findings.begin(), findings.end(), counts);
    if (!facts.daemon)
        return {Mark::Bad, "No, no alarm will ring: " + brief(*obstacle)};
    if (!facts.next && obstacle != findings.end())
        return {Mark::Bad, withoutAlarm(facts) + " But " + brief(*obstacle)};
    if (!facts.next)
        return {Mark::Good, withoutAlarm(facts)};
    if (obstacle != findings.end())
        return {Mark::Bad, "No, the next alarm would not be heard: " + brief(*obstacle)};
    const auto warnings = std::count_if(findings.begin(), findings.end(),
                                        [](const Finding &finding) { return finding.mark == Mark::Warning; });
    if (warnings == 0)
        return {Mark::Good, "Yes, the next alarm will ring."};
    return {Mark::Warning,
            QStringLiteral("Yes, the next alarm will ring, with %1 %2.")
                .arg(warnings)
                .arg(warnings == 1 ? "warning" : "warnings")};
}
