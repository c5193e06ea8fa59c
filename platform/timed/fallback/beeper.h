// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QObject>
#include <QTimer>

using GstElement = struct _GstElement;

namespace Fallback {

/**
 * Beeps through whatever plays sound: the sound server, the sound card itself, anything else GStreamer finds. Makes the
 * tone itself; needs no file. Goes on to the next output where one fails, and begins again after the last.
 */
class Beeper : public QObject
{
    Q_OBJECT

public:
    Beeper();
    ~Beeper() override;

    /** Goes on where it beeps already. */
    void start();
    void stop();
    bool isHeard() const { return m_heard; }

signals:
    /** The output takes the tone. */
    void heard();

private:
    struct End
    {
        void operator()(GstElement *pipeline) const;
    };

    void open();
    void look();

    std::unique_ptr<GstElement, End> m_pipeline;
    std::size_t m_output = 0;
    std::size_t m_failures = 0;
    bool m_heard = false;
    QTimer m_retry;
    QTimer m_watch;
};

} // namespace Fallback
