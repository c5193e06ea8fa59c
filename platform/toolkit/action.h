// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAction>

namespace Touch {

/** An action that says where the widget that has it offers it. */
class Action : public QAction
{
    Q_OBJECT

public:
    enum Location {
        NoLocation = 0,
        ObjectMenuLocation = 8 ///< the menu that a long press on the widget opens
    };
    Q_ENUM(Location)

    explicit Action(QObject *parent = nullptr);
    explicit Action(const QString &text, QObject *parent = nullptr);
    ~Action() override;

    int location() const { return m_location; }
    /** One of Location, or several of them. */
    void setLocation(int location);

private:
    int m_location = NoLocation;
};

} // namespace Touch
