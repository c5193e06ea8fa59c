// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/toneorder.h"

#include <QObject>
#include <QQueue>
#include <QThreadPool>
#include <QVariantMap>

#include <functional>

namespace Ringer {

class PluginLoader;

/**
 * Tells what would happen if an alarm rang now, without a sound: com.astel.ringer.xml says which facts there are.
 * What takes time runs in a thread of its own, one check after the other. Owned by the program; main thread.
 */
class RingCheck : public QObject
{
    Q_OBJECT

public:
    static constexpr auto MaximalChecks = 8; ///< at a time

    using Finished = std::function<void(const QVariantMap &facts)>;

    explicit RingCheck(const PluginLoader *plugins, const ToneOrder &toneOrder = ToneOrder(),
                       QObject *parent = nullptr);
    ~RingCheck() override;

    /**
     * Returns at once; false where too many checks are under way. "finished" is called later, from the event loop,
     * unless this object has gone by then.
     */
    [[nodiscard]] bool start(const QString &tone, const QString &plugin, const Finished &finished);

Q_SIGNALS:
    void gathered(const QVariantMap &facts); ///< from the thread, for this object itself

private:
    void finish(const QVariantMap &facts);
    [[nodiscard]] QVariantMap screenFacts(const QString &plugin) const;

    const PluginLoader *m_plugins;
    const ToneOrder m_toneOrder;
    QThreadPool m_thread;
    QQueue<Finished> m_underWay; ///< in the order in which they are answered
};

} // namespace Ringer
