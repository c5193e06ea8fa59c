// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/clockapplicationservice.h"

#include "app/references.h"
#include "mainview/mashuppage.h"

#include <QDebug>

ClockApplicationService::ClockApplicationService(QObject *parent)
    : Touch::ApplicationService("com.korvo.clock", parent)
{
    qDebug() << "ClockApplicationService::ClockApplicationService";
}

ClockApplicationService::~ClockApplicationService()
{
    qDebug() << "ClockApplicationService::~ClockApplicationService";
}

void ClockApplicationService::launch()
{
    qDebug() << "ClockApplicationService::launch starts";
    if (mainPage)
        mainPage->resetContent();
    qDebug() << "ClockApplicationService::launch end";
    Touch::ApplicationService::launch();
}
