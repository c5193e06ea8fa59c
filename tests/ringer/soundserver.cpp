// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/soundserver.h"

#include <QDataStream>
#include <QFile>
#include <QtEndian>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <numbers>

namespace Support {

namespace {

void stop(QProcess &process)
{
    process.kill();
    process.waitForFinished();
}

} // namespace

SoundServer::SoundServer()
{
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath(QStringLiteral("native")).toUtf8());
    m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_recorder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

SoundServer::~SoundServer()
{
    stop(m_recorder);
    stop(m_server);
}

bool SoundServer::start()
{
    const auto socket = m_folder.filePath(QStringLiteral("native"));
    QFile::remove(socket);
    forget();
    m_server.start(QStringLiteral("pulseaudio"),
                   {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--log-level=error", "-L",
                    "module-null-sink sink_name=null", "-L",
                    "module-native-protocol-unix auth-anonymous=1 socket=" + socket});
    if (!QTest::qWaitFor([&] { return QFile::exists(socket); }, 10'000))
        return false;
    return listenTo(QStringLiteral("null"));
}

bool SoundServer::listenTo(const QString &sink)
{
    stop(m_recorder);
    forget();
    m_recorder.start(QStringLiteral("parec"),
                     {"-d", sink + ".monitor", "--format=s16le", "--channels=1", "--latency-msec=20",
                      "--rate=" + QString::number(Rate)});
    return QTest::qWaitFor([this] { return !samples().isEmpty(); }, 10'000);
}

void SoundServer::kill()
{
    stop(m_recorder);
    stop(m_server);
}

void SoundServer::hang()
{
    tell(SIGSTOP);
}

void SoundServer::goOn()
{
    tell(SIGCONT);
}

// Without a server the number would stand for all processes of the group.
void SoundServer::tell(int signal)
{
    if (const auto server = pid_t(m_server.processId()); server > 0)
        ::kill(server, signal);
}

bool SoundServer::control(const QStringList &arguments)
{
    return QProcess::execute(QStringLiteral("pactl"), arguments) == 0;
}

QString SoundServer::query(const QStringList &arguments)
{
    QProcess client;
    client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    client.start(QStringLiteral("pactl"), arguments);
    client.waitForFinished();
    return QString::fromUtf8(client.readAllStandardOutput());
}

void SoundServer::forget()
{
    m_recorder.readAllStandardOutput();
    m_heard.clear();
}

QList<float> SoundServer::samples()
{
    m_heard += m_recorder.readAllStandardOutput();
    QList<float> samples(m_heard.size() / 2);
    const auto *raw = reinterpret_cast<const quint8 *>(m_heard.constData());
    for (qsizetype index = 0; index < samples.size(); ++index)
        samples[index] = float(qFromLittleEndian<qint16>(raw + 2 * index)) / 32768.0f;
    return samples;
}

float SoundServer::peak(int milliseconds)
{
    const auto count = qsizetype(milliseconds) * Rate / 1000;
    const auto heard = samples();
    if (heard.size() < count)
        return 0;
    const auto last = heard.last(count);
    return std::abs(*std::max_element(last.begin(), last.end(),
                                      [](float left, float right) { return std::abs(left) < std::abs(right); }));
}

bool writeSine(const QString &path, float amplitude, int milliseconds)
{
    constexpr quint32 FileRate = 48'000;
    const auto count = quint32(milliseconds) * FileRate / 1000;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + 2 * count);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << FileRate << 2 * FileRate << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << 2 * count;
    for (quint32 index = 0; index < count; ++index)
        out << qint16(32767 * amplitude * std::sin(2 * std::numbers::pi * 500 * index / FileRate));
    return out.status() == QDataStream::Ok;
}

} // namespace Support
