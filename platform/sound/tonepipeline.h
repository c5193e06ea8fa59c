// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/soundoutput.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

#include <gst/gst.h>

namespace Sound {

/**
 * One tone on its way to the loudspeaker: decodes in a loop without a gap and listens to itself before the volume,
 * which is low at first. Needs gst_init(). Lives in the main thread; GStreamer's threads only post to it.
 */
class TonePipeline : public QObject
{
    Q_OBJECT

public:
    /** Plays a file; null, with a reason, where there is no working sound output or GStreamer lacks a part. */
    [[nodiscard]] static std::unique_ptr<TonePipeline> ofFile(const QString &path, QString *reason,
                                                              const OutputChoice &output = {});
    /** Plays two beeps a second, which need no file and no decoder; fails as ofFile() does. */
    [[nodiscard]] static std::unique_ptr<TonePipeline> ofBeeps(QString *reason, const OutputChoice &output = {});
    ~TonePipeline() override;
    /** Halts one, if there is one, and gives it up; its follower hears no more of it. Also from within its signals. */
    static void end(std::unique_ptr<TonePipeline> &pipeline, const QObject *follower);

    void start();
    void halt(); ///< silent when it returns, unless the sound server hangs
    void setVolume(double amplitude);

Q_SIGNALS:
    void flows(bool audible); ///< every 50 ms while sound goes out
    void failed(const QString &reason);

    // From any thread; queued to the main thread, where they become the signals above.
    void errorSeen(const QString &reason);
    void levelSeen(bool isAudible);
    void endSeen();

private:
    using Build = std::function<GstElement *(GstElement *output, GstElement *filter)>;

    TonePipeline(GstElement *pipeline, GstElement *filter);
    [[nodiscard]] static std::unique_ptr<TonePipeline> create(const Build &build, const OutputChoice &choice,
                                                              QString *reason);
    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, void *self);
    void post(GstMessage *message);
    void measure(GstMessage *message);
    void startAgain();

    GstElement *m_pipeline;
    GstElement *m_volume;
    std::atomic<bool> m_playing = false;
    bool m_isHalted = false;
};

} // namespace Sound
