// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonecollator_p.h"

#include "platform/locale/locale.h"

QCollator toneCollator()
{
    QCollator order(QLocale(Touch::Locale::getDefault().categoryName(Touch::Locale::MessageCategory)));
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}
