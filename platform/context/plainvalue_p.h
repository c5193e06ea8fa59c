// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QVariant>

namespace Context {

/**
 * A value from the bus with every wrapper of Qt DBus taken off, at any depth: dictionaries become
 * QVariantMap, arrays and structures QVariantList, numbers keep their type.
 */
QVariant plainValue(const QVariant &value);

} // namespace Context
