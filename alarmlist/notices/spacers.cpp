// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/notices/spacers.h"

#include "platform/toolkit/separator.h"

namespace {

Touch::Separator *separator(const QString &styleName)
{
    auto *result = new Touch::Separator;
    result->setStyleName(styleName);
    return result;
}

} // namespace

Touch::Separator *createSpacer()
{
    return separator("CommonSpacer");
}

Touch::Separator *createLargeSpacer()
{
    return separator("CommonXLargeSpacer");
}
