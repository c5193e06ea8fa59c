// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Notices {
class Notifier;
}

namespace Astel::Timed {

/**
 * Tells the user once that a damaged store was replaced by an earlier copy, as soon as there is a notifier that shows it.
 */
class RestorationTeller : public QObject
{
    Q_OBJECT

public:
    explicit RestorationTeller(Notices::Notifier &notifier);

    /** There is something to tell. */
    void tell();

private:
    void show();

    Notices::Notifier &m_notifier;
    bool m_isUntold = false;
};

} // namespace Astel::Timed
