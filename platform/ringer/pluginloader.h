// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>

#include <memory>

namespace Ringer {

class Answers;
class PlainScreen;
class RingPlugin;

/**
 * Finds the screen for an alarm: the plug-in of a bare name in the one plug-in folder, or the plain screen that is
 * built in when there is no such plug-in, so that no alarm stays unseen. Loads each plug-in once and keeps it.
 */
class PluginLoader
{
public:
    struct Screen
    {
        RingPlugin *plugin = nullptr; ///< never null in what screen() returns
        QString name;                 ///< for the daemon's journal
        QString trouble = {};         ///< why it is the plain screen; empty where it is the plug-in
    };

    /** The folder of this installation, or the one in RINGER_PLUGIN_DIR. */
    [[nodiscard]] static QString defaultFolder();

    explicit PluginLoader(const QString &folder = defaultFolder());
    ~PluginLoader();

    void setAnswers(Answers *answers); ///< once, before the first screen
    [[nodiscard]] Screen screen(const QString &name);
    /** Why the plain screen would stand in for a plug-in; empty when the plug-in loads, which is tried. */
    [[nodiscard]] QString reasonAgainst(const QString &name) const;

private:
    [[nodiscard]] RingPlugin *load(const QString &name, QString *reason) const;
    [[nodiscard]] Screen plainScreen(const QString &trouble);

    QString m_folder;
    Answers *m_answers = nullptr;
    QHash<QString, RingPlugin *> m_plugins; ///< owned by Qt's plug-in registry
    std::unique_ptr<PlainScreen> m_plainScreen;
};

} // namespace Ringer
