// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmoptionspage.h"

#include "app/settings.h"
#include "editor/alarmeditorlistitem.h"
#include "editor/titlequery.h"
#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/sparql/qsparqlquery.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/toolkit/applicationwindow.h"

#include <QSignalBlocker>

void AlarmOptionsPage::askForTitle()
{
    const QSparqlResult *result = m_store.exec(QSparqlQuery(titleQuery(m_tone)));
    connect(result, &QSparqlResult::finished, this, &AlarmOptionsPage::queryResultAvailable);
}

void AlarmOptionsPage::queryResultAvailable()
{
    auto *result = qobject_cast<QSparqlResult *>(sender());
    if (!result)
        return;
    m_toneItem->setSubtitle(result->first() ? result->stringValue(0) : AlertTone::niceNameOf(m_tone));
    result->deleteLater();
}

void AlarmOptionsPage::toneClicked()
{
    if (!m_toneBrowser)
        makeToneBrowser();
    // It starts with the tone as it is now, also where a choice was taken back since.
    const QSignalBlocker blocker(m_alertTone.get());
    m_alertTone->setTone(m_tone, m_toneItem->subtitle());
    m_toneBrowser->appear(hostWindow());
}

void AlarmOptionsPage::makeToneBrowser()
{
    m_alertTone = std::make_unique<AlertTone>(Settings::AlertToneSetting);
    m_toneBrowser = std::make_unique<AlertToneBrowserSheet>(m_alertTone.get());
    connect(m_alertTone.get(), &AlertTone::changed, this, &AlarmOptionsPage::toneSelected);
}

void AlarmOptionsPage::toneSelected()
{
    setTone(m_alertTone->fileName());
    m_toneItem->setSubtitle(m_alertTone->niceName());
}
