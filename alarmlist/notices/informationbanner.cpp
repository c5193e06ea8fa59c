// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/notices/informationbanner.h"

#include "platform/toolkit/banner.h"

namespace {

// Made by the first notice and then kept; not cleared by destroyInformationBanner(), which is the last to look.
Touch::Banner *sharedBanner = nullptr;

} // namespace

void showInformationBanner(const QString &text)
{
    if (!sharedBanner) {
        sharedBanner = new Touch::Banner;
        sharedBanner->setStyleName(InformationBannerStyle);
    }
    hideInformationBanner();
    sharedBanner->setTitle(text);
    sharedBanner->appear(nullptr, Touch::SceneWindow::KeepWhenDone);
}

void hideInformationBanner()
{
    if (sharedBanner && sharedBanner->isOnDisplay())
        sharedBanner->disappear();
}

void destroyInformationBanner()
{
    hideInformationBanner();
    delete sharedBanner;
}
