// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Touch {

/**
 * Hands the user's choice of light or dark and of the size of text on to the theme: at first, and whenever they
 * change. Asks the desktop's settings portal without waiting for it; where there is none, the theme keeps to the
 * palette. A program makes one after its application object, which owns it. GUI thread only.
 */
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    explicit DesktopLook(QObject *parent);
    ~DesktopLook() override;
};

} // namespace Touch
