// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

/** A plug-in for an interface that the ringer does not speak. */
class OutdatedPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.astel.ringer.RingPlugin/0")
};
