// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAction>

namespace Touch {

/** An action that says where it is offered. */
class Action : public QAction
{
    Q_OBJECT

public:
    /** The menu that a long press on the owning widget opens is location 8. */
    enum Location { NoLocation = 0, ObjectMenuLocation = 8 };

    explicit Action(QObject *parent = nullptr);
    explicit Action(const QString &text, QObject *parent = nullptr);
    ~Action() override;

    int location() const { return m_location; }
    void setLocation(int location);

private:
    int m_location = NoLocation;
};

} // namespace Touch
