// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace Support {

/**
 * A real sound server of one test program with a sink that leads nowhere, and what was heard on it. Set up before the
 * first sound; ends with the object.
 */
class SoundServer
{
public:
    static constexpr auto Rate = 8000; ///< of samples()

    SoundServer();
    ~SoundServer();

    /** True once the server answers and the recording runs. */
    [[nodiscard]] bool start();
    void kill();
    /** Takes connections and answers nothing, until it goes on. */
    void hang();
    void goOn();
    /** What `pactl` does with these arguments; false where the server refuses. */
    [[nodiscard]] bool control(const QStringList &arguments);
    /** What `pactl` answers. */
    [[nodiscard]] QString query(const QStringList &arguments);
    /** Hears this sink from now on; the one called "null" is there from the start. */
    [[nodiscard]] bool listenTo(const QString &sink);

    /** Forgets what was heard so far. */
    void forget();
    /** What was heard, −1 to 1, mono. */
    [[nodiscard]] QList<float> samples();
    /** The loudest of the last so many milliseconds, 0 when less was heard. */
    [[nodiscard]] float peak(int milliseconds);

private:
    void tell(int signal);

    QTemporaryDir m_folder;
    QProcess m_server;
    QProcess m_recorder;
    QByteArray m_heard;
};

/** Writes a WAV file with a sine of 500 Hz; its length is a whole number of waves. */
[[nodiscard]] bool writeSine(const QString &path, float amplitude, int milliseconds);

} // namespace Support
