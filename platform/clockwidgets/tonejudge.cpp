// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonejudge_p.h"

#include <memory>
#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

using Sound::Probe;

ToneJudge::ToneJudge(QObject *parent)
    : QObject(parent)
{ }

ToneJudge::~ToneJudge() = default;

void ToneJudge::ask(const QString &path)
{
    m_path = path;
    const auto promise = std::make_shared<QPromise<Probe::Verdict>>();
    auto *watcher = new QFutureWatcher<Probe::Verdict>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        answer(path, watcher->result());
    });
    watcher->setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, path] {
        promise->start();
        promise->addResult(Sound::probeFile(path).verdict);
        promise->finish();
    });
}

void ToneJudge::answer(const QString &path, Probe::Verdict verdict)
{
    if (m_path != path)
        return;
    m_path.clear();
    Q_EMIT judged(path, verdict);
}
