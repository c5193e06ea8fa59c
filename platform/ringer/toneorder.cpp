// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/toneorder.h"

#include "platform/ringer/toneplayer.h"
#include "platform/sound/profile/soundprofile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace Ringer {

namespace {

const auto CustomProfile = QStringLiteral("97.custom.ini");
const auto VendorProfile = QStringLiteral("93.korvo.ini");
const auto AlertToneKey = QStringLiteral("fallback/clock.alert.tone");
const auto BuiltInTone = QStringLiteral("sounds/ring-tones/Clock alert 1.aac");

QString toPath(const QString &tone)
{
    return tone.startsWith(QLatin1String("file:")) ? QUrl(tone).toLocalFile() : tone;
}

// The silent file that ships with the tones; any other silent file is a tone that went wrong.
bool isChosenSilence(const QString &path)
{
    const QFileInfo file(path);
    return file.completeBaseName() == QLatin1String("No sound") && file.dir().dirName() == QLatin1String("ring-tones")
        && file.isFile();
}

} // namespace

ToneOrder::ToneOrder(const QString &profileFolder)
    : m_profileFolder(profileFolder)
{ }

QStringList ToneOrder::tones(const QString &eventTone) const
{
    const auto own = toPath(eventTone);
    if (isChosenSilence(own))
        return {QLatin1String(TonePlayer::Silence)};
    QStringList tones{own, toPath(defaultAlertTone())};
    tones += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, BuiltInTone);
    tones.removeAll(QString());
    tones.removeDuplicates();
    tones += QLatin1String(TonePlayer::Beeps);
    return tones;
}

QString ToneOrder::defaultAlertTone() const
{
    const auto folder = m_profileFolder + QLatin1Char('/');
    return Sound::profileValue({folder + CustomProfile, folder + VendorProfile}, AlertToneKey).value_or(QString());
}

} // namespace Ringer
