// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/attention.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace Ringer {

namespace {

const DesktopHold::Service ScreenSaver{
    QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver"),
    QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("Inhibit"), QStringLiteral("UnInhibit")};
const DesktopHold::Service Portal{QStringLiteral("org.freedesktop.portal.Desktop"),
                                  QStringLiteral("/org/freedesktop/portal/desktop"),
                                  QStringLiteral("org.freedesktop.portal.Inhibit"),
                                  QStringLiteral("Inhibit"),
                                  {}};
const DesktopHold::Service Feedback{QStringLiteral("org.sigxcpu.Feedback"), QStringLiteral("/org/sigxcpu/Feedback"),
                                    QStringLiteral("org.sigxcpu.Feedback"), QStringLiteral("TriggerFeedback"),
                                    QStringLiteral("EndFeedback")};

const auto Application = QStringLiteral("com.astel.ringer");
const auto Reason = QStringLiteral("An alarm rings");
// Of the portal: going idle.
constexpr uint Idle = 8;
// Again and again until it is ended.
constexpr int UntilEnded = 0;

// The quiet profile vibrates and lights up; the sound is the ringer's own.
QVariantList feedbackArguments()
{
    return {Application, QStringLiteral("alarm-clock-elapsed"), QVariantMap{{"profile", QStringLiteral("quiet")}},
            UntilEnded};
}

} // namespace

Attention::Attention(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_display(ScreenSaver, {Application, Reason}, bus)
    , m_idle(Portal, {QString(), Idle, QVariantMap{{"reason", Reason}}}, bus)
    , m_vibration(Feedback, feedbackArguments(), bus)
{
    connect(&m_display, &DesktopHold::refused, &m_idle, &DesktopHold::begin);
}

Attention::~Attention() = default;

void Attention::setWanted(bool isWanted)
{
    if (m_isWanted == isWanted)
        return;
    m_isWanted = isWanted;
    if (!isWanted) {
        m_vibration.end();
        m_display.end();
        m_idle.end();
        return;
    }
    m_vibration.begin();
    m_display.begin();
    wakeDisplay();
}

void Attention::wakeDisplay()
{
    m_bus.send(QDBusMessage::createMethodCall(ScreenSaver.name, ScreenSaver.path, ScreenSaver.name,
                                              QStringLiteral("SimulateUserActivity")));
}

} // namespace Ringer
