// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

using pa_context = struct pa_context;
using pa_mainloop = struct pa_mainloop;
using pa_operation = struct pa_operation;

namespace Sound {

/** One of the sound server's ways to an ear. */
struct PulseSink
{
    enum class Place { Unknown, Ears, Room };

    QString id;       ///< for the server
    QString name;     ///< for people
    Place place;      ///< worn on the ears, or a loudspeaker
    uint volume;      ///< percent
    bool takesVolume; ///< of the stream that plays, whatever its own is
    bool isMuted;
    bool isDefault; ///< plays what asks for no sink
};

/**
 * The Pulse server, or PipeWire in its place. Each call blocks until it is answered, all of them together for two
 * seconds at most; may be used from any thread, by one at a time.
 */
class PulseServer
{
public:
    /** Null, with a reason, where none answers. */
    [[nodiscard]] static std::unique_ptr<PulseServer> create(QString *reason);
    /** Whether there is one that takes a connection and then says nothing for so long: it hangs. Blocks until it
     *  answers. */
    [[nodiscard]] static bool hangs(std::chrono::milliseconds time);
    ~PulseServer();
    Q_DISABLE_COPY(PulseServer)

    /** Without what the server makes up where it has no device; nothing where it does not answer. */
    [[nodiscard]] std::optional<QList<PulseSink>> sinks();
    /** Both are false where the server refuses. */
    bool setMuted(const QString &sink, bool isMuted);
    bool setVolume(const QString &sink, uint percent);

private:
    struct EndContext
    {
        void operator()(pa_context *context) const;
    };
    struct EndLoop
    {
        void operator()(pa_mainloop *loop) const;
    };

    explicit PulseServer(std::chrono::milliseconds time);
    bool connect();
    bool runUntil(const std::function<bool()> &isDone);
    bool finish(pa_operation *operation);

    const QDeadlineTimer m_deadline;
    std::unique_ptr<pa_mainloop, EndLoop> m_loop;
    std::unique_ptr<pa_context, EndContext> m_context;
};

} // namespace Sound
