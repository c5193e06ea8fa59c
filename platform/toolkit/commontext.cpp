// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/commontext_p.h"

#include <QCoreApplication>

namespace Touch::CommonText {

namespace {

QString text(const char *id, const char *english)
{
    const QString translated = qtTrId(id);
    return translated == QLatin1String(id) ? QString::fromLatin1(english) : translated;
}

} // namespace

QString ok()
{
    return text("qtn_comm_ok", "OK");
}

QString cancel()
{
    return text("qtn_comm_cancel", "Cancel");
}

QString done()
{
    return text("qtn_comm_command_done", "Done");
}

QString back()
{
    return text("qtn_comm_back", "Back");
}

QString home()
{
    return text("qtn_comm_home", "Home screen");
}

QString navigation()
{
    return text("qtn_comm_navigation", "Navigation");
}

} // namespace Touch::CommonText
