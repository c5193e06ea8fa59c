// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonepreview_p.h"

#include "platform/sound/tonepipeline.h"

TonePreview::TonePreview(QObject *parent)
    : QObject(parent)
{ }

TonePreview::~TonePreview() = default;

void TonePreview::play(const QString &path)
{
    stop();
    gst_init(nullptr, nullptr);
    QString reason;
    m_pipeline = Sound::TonePipeline::ofFile(path, &reason);
    if (!m_pipeline) {
        Q_EMIT stopped();
        return;
    }
    connect(m_pipeline.get(), &Sound::TonePipeline::failed, this, &TonePreview::stop);
    m_pipeline->setVolume(1.0);
    m_pipeline->start();
}

void TonePreview::stop()
{
    if (!m_pipeline)
        return;
    Sound::TonePipeline::end(m_pipeline, this);
    Q_EMIT stopped();
}
