// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonefiller.h"

#include "platform/tones/tonefiles.h"
#include "platform/tones/tonefillwork_p.h"

namespace Tones {

namespace {

QStringList allFolders()
{
    QStringList folders = ringToneFolders();
    if (const QString music = musicFolder(); !music.isEmpty())
        folders += music;
    return folders;
}

} // namespace

ToneFiller::ToneFiller(QObject *parent)
    : ToneFiller(allFolders(), {}, parent)
{ }

ToneFiller::ToneFiller(const QStringList &folders, const QSparqlConnectionOptions &options, QObject *parent)
    : QObject(parent)
    , m_folders(folders)
    , m_options(options)
{
    m_thread.setObjectName(QStringLiteral("tones"));
}

ToneFiller::~ToneFiller()
{
    m_thread.requestInterruption();
    m_thread.quit();
    m_thread.wait();
}

void ToneFiller::start()
{
    if (m_thread.isRunning())
        return;
    auto *work = new ToneFillWork(m_folders, m_options);
    work->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, work, &ToneFillWork::begin);
    connect(&m_thread, &QThread::finished, work, &QObject::deleteLater);
    connect(work, &ToneFillWork::filled, this, &ToneFiller::filled);
    connect(work, &ToneFillWork::failed, this, &ToneFiller::failed);
    m_thread.start();
}

} // namespace Tones
