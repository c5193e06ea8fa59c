// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/window.h"

namespace Touch {

class ApplicationPage;

/** The window of an application: it bears the title of its current page. */
class ApplicationWindow : public Window
{
    Q_OBJECT

public:
    explicit ApplicationWindow(QWidget *parent = nullptr);
    ~ApplicationWindow() override;

    /** The topmost page, or null. */
    ApplicationPage *currentPage() const;

private:
    void followCurrentPage();

    QMetaObject::Connection m_titleConnection;
};

} // namespace Touch
