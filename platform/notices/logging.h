// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcNotices)
