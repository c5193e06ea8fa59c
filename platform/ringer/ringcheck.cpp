// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringcheck.h"

#include "platform/ringer/pluginloader.h"
#include "platform/ringer/toneprobe.h"
#include "platform/sound/pulseserver.h"
#include "platform/sound/soundoutput.h"

#include <QGuiApplication>

#include <algorithm>

namespace Ringer {

namespace {

QVariantMap pulseFacts()
{
    QString reason;
    const auto server = Sound::PulseServer::create(&reason);
    if (!server)
        return {{"output_reason", reason}};
    const auto sinks = server->sinks();
    if (!sinks)
        return {{"output_reason", "the sound server does not answer"}};
    const auto sink = std::find_if(sinks->begin(), sinks->end(), [](const auto &each) { return each.isDefault; });
    if (sink == sinks->end())
        return {{"output_reason", "the sound server has no sound device"}};
    // The ringer's stream is at full volume.
    return {{"output", sink->name}, {"volume", sink->takesVolume ? 100 : sink->volume}, {"muted", sink->isMuted}};
}

// Only a sound server tells its volume.
QVariantMap soundFacts()
{
    gst_init(nullptr, nullptr);
    QString reason;
    auto *output = Sound::createSoundOutput(&reason);
    if (!output)
        return {{"output_reason", reason}};
    const auto element = QString::fromUtf8(GST_OBJECT_NAME(gst_element_get_factory(output)));
    Sound::discardSoundOutput(output);
    return element == QLatin1String("pulsesink") ? pulseFacts() : QVariantMap{{"output", element}};
}

QVariantMap toneFacts(const QStringList &tones)
{
    QStringList rejected;
    QStringList reasons;
    for (const auto &tone : tones) {
        const auto reason = probeTone(tone);
        if (reason.isEmpty())
            return {{"tone", tone}, {"rejected_tones", rejected}, {"rejected_reasons", reasons}};
        rejected += tone;
        reasons += reason;
    }
    return {{"rejected_tones", rejected}, {"rejected_reasons", reasons}};
}

} // namespace

RingCheck::RingCheck(const PluginLoader *plugins, const ToneOrder &toneOrder, QObject *parent)
    : QObject(parent)
    , m_plugins(plugins)
    , m_toneOrder(toneOrder)
{
    m_thread.setMaxThreadCount(1);
    connect(this, &RingCheck::gathered, this, &RingCheck::finish, Qt::QueuedConnection);
}

RingCheck::~RingCheck()
{
    m_thread.clear();
    m_thread.waitForDone();
}

bool RingCheck::start(const QString &tone, const QString &plugin, const Finished &finished)
{
    if (m_underWay.size() == MaximalChecks)
        return false;
    m_underWay.enqueue(finished);
    m_thread.start([this, facts = screenFacts(plugin), tones = m_toneOrder.tones(tone)] {
        auto all = facts;
        all.insert(soundFacts());
        all.insert(toneFacts(tones));
        Q_EMIT gathered(all);
    });
    return true;
}

void RingCheck::finish(const QVariantMap &facts)
{
    m_underWay.dequeue()(facts);
}

QVariantMap RingCheck::screenFacts(const QString &plugin) const
{
    QVariantMap facts{{"display", QGuiApplication::platformName() != QLatin1String("offscreen")}};
    if (const auto reason = m_plugins->reasonAgainst(plugin); !reason.isEmpty())
        facts.insert(QStringLiteral("plugin_reason"), reason);
    return facts;
}

} // namespace Ringer
