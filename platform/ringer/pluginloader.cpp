// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/pluginloader.h"

#include "platform/ringer/logging.h"
#include "platform/ringer/plainscreen.h"
#include "platform/ringer/ringplugin.h"

#include <QPluginLoader>

namespace Ringer {

namespace {

bool isBareName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/'))
        && !name.contains(QLatin1Char('\\')) && !name.contains(QChar(QChar::Null));
}

} // namespace

QString PluginLoader::defaultFolder()
{
    return qEnvironmentVariable("RINGER_PLUGIN_DIR", QStringLiteral(RINGER_PLUGIN_FOLDER));
}

PluginLoader::PluginLoader(const QString &folder)
    : m_folder(folder)
{ }

PluginLoader::~PluginLoader() = default;

void PluginLoader::setAnswers(Answers *answers)
{
    m_answers = answers;
}

PluginLoader::Screen PluginLoader::screen(const QString &name)
{
    if (auto *known = m_plugins.value(name))
        return {known, name};
    QString reason;
    if (auto *plugin = load(name, &reason)) {
        plugin->setAnswers(m_answers);
        m_plugins.insert(name, plugin);
        return {plugin, name};
    }
    const auto trouble = QStringLiteral("No plug-in \"%1\" (%2), using the plain screen").arg(name, reason);
    qCWarning(lcRinger, "%ls", qUtf16Printable(trouble));
    return plainScreen(trouble);
}

QString PluginLoader::reasonAgainst(const QString &name) const
{
    QString reason;
    (void)load(name, &reason);
    return reason;
}

RingPlugin *PluginLoader::load(const QString &name, QString *reason) const
{
    if (!isBareName(name)) {
        *reason = QStringLiteral("not a bare name");
        return nullptr;
    }
    QPluginLoader loader(m_folder + QLatin1Char('/') + name + QLatin1String(".so"));
    if (loader.metaData().value(QLatin1String("IID")).toString() != QLatin1String(RingPlugin_iid)) {
        *reason = loader.metaData().isEmpty() ? loader.errorString() : QStringLiteral("another interface");
        return nullptr;
    }
    auto *plugin = qobject_cast<RingPlugin *>(loader.instance());
    if (!plugin)
        *reason = loader.errorString();
    return plugin;
}

PluginLoader::Screen PluginLoader::plainScreen(const QString &trouble)
{
    if (!m_plainScreen) {
        m_plainScreen = std::make_unique<PlainScreen>();
        m_plainScreen->setAnswers(m_answers);
    }
    return {m_plainScreen.get(), QStringLiteral("plain screen"), trouble};
}

} // namespace Ringer
