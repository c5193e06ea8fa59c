// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

#include <functional>

/** The bytes of a backup in which one member has another content, with checksums that match it. */
QByteArray forged(const QByteArray &backup, const QByteArray &member,
                  const std::function<QByteArray(const QByteArray &)> &change);
