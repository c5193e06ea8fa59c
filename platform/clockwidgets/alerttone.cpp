// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alerttone.h"

#include "platform/tones/tonefiles.h"

#include <QUrl>

AlertTone::AlertTone(const QString &toneText, QObject *parent)
    : QObject(parent)
    , m_fileName(toneText.startsWith(QLatin1String("file:")) ? QUrl(toneText).toLocalFile() : toneText)
    , m_niceName(niceNameOf(m_fileName))
{ }

void AlertTone::setTone(const QString &fileName, const QString &niceName)
{
    if (m_fileName == fileName && m_niceName == niceName)
        return;
    m_fileName = fileName;
    m_niceName = niceName;
    Q_EMIT changed();
}

QString AlertTone::niceNameOf(const QString &fileName)
{
    return Tones::isNoSound(fileName) ? qtTrId("qtn_sond_ringtone_nosound") : Tones::nameFromFile(fileName);
}
