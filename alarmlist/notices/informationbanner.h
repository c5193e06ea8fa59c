// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

// The styles that a theme may give to a banner.
inline const QString FullEventBannerStyle = QStringLiteral("FullEventBanner");
inline const QString ShortEventBannerStyle = QStringLiteral("ShortEventBanner");
inline const QString PrivateEventBannerStyle = QStringLiteral("PrivateEventBanner");
inline const QString InformationBannerStyle = QStringLiteral("InformationBanner");
inline const QString LockScreenEventBannerStyle = QStringLiteral("LockScreenEventBanner");
inline const QString SystemBannerStyle = QStringLiteral("SystemBanner");
inline const QString GenericBannerStyle = QStringLiteral("GenericBanner");

/** Shows a short notice in the one shared banner, over the active window; a notice still showing goes first. */
void showInformationBanner(const QString &text);

/** Takes the shared banner off the display if it is showing. */
void hideInformationBanner();

/** Ends the shared banner, once, when the program ends: no notice may be shown or hidden after it. */
void destroyInformationBanner();
