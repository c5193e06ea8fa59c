// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/logging.h"

Q_LOGGING_CATEGORY(lcNotices, "astel.notices")
