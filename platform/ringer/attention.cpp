// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/attention.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace Ringer {

namespace {

const DesktopHold::Service ScreenSaver{QStringLiteral("org.freedesktop.ScreenSaver"),
                                       QStringLiteral("/org/freedesktop/ScreenSaver"), QStringLiteral("Inhibit"),
                                       QStringLiteral("UnInhibit")};
const DesktopHold::Service Feedback{QStringLiteral("org.sigxcpu.Feedback"), QStringLiteral("/org/sigxcpu/Feedback"),
                                    QStringLiteral("TriggerFeedback"), QStringLiteral("EndFeedback")};

const auto Application = QStringLiteral("com.astel.ringer");
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
    , m_display(ScreenSaver, {Application, QStringLiteral("An alarm rings")}, bus)
    , m_vibration(Feedback, feedbackArguments(), bus)
{ }

Attention::~Attention() = default;

void Attention::setWanted(bool isWanted)
{
    if (m_isWanted == isWanted)
        return;
    m_isWanted = isWanted;
    if (!isWanted) {
        m_vibration.end();
        m_display.end();
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
