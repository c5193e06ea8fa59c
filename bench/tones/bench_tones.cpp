// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/qsparqlconnection.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/tones/tonefiller.h"
#include "tests/tones/tonefile.h"

#include <algorithm>
#include <cstdio>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <vector>

namespace {

constexpr int UsualFiles = 1000;
constexpr int Queries = 200;

double milliseconds(const QElapsedTimer &time)
{
    return double(time.nsecsElapsed()) / 1e6;
}

/** How long the thread was kept from its event loop at worst. */
class Heart : public QObject
{
public:
    Heart()
    {
        m_time.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            m_worst = std::max(m_worst, milliseconds(m_time));
            m_time.start();
        });
        m_timer.start(1);
    }

    [[nodiscard]] double worst() const { return m_worst; }

private:
    QTimer m_timer;
    QElapsedTimer m_time;
    double m_worst = 0;
};

QString tonePath(const QTemporaryDir &folder, int number)
{
    return folder.filePath(QStringLiteral("tones/album %1/tone %2.mp3").arg(number / 20).arg(number));
}

void measureFill(const QTemporaryDir &folder, const QSparqlConnectionOptions &options, const char *name)
{
    QElapsedTimer time;
    time.start();
    Heart heart;
    Tones::ToneFiller filler({folder.filePath(QStringLiteral("tones"))}, options);
    QEventLoop loop;
    QObject::connect(&filler, &Tones::ToneFiller::filled, &loop, [&](int read) {
        std::printf("%-22s %4d files read in %.0f ms; main thread held up for %.1f ms at most\n", name, read,
                    milliseconds(time), heart.worst());
        loop.quit();
    });
    QObject::connect(&filler, &Tones::ToneFiller::failed, &loop, &QEventLoop::quit);
    filler.start();
    loop.exec();
}

double queryTime(QSparqlConnection &connection, const QString &path)
{
    const QString url = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    QElapsedTimer time;
    time.start();
    auto *result = connection.exec(QSparqlQuery(
        QStringLiteral("select nie:title(?u) ?u where { ?u a nmm:MusicPiece . ?u nie:url \"%1\"}").arg(url)));
    QEventLoop loop;
    QObject::connect(result, &QSparqlResult::finished, &loop, &QEventLoop::quit);
    loop.exec();
    const auto taken = milliseconds(time);
    if (!result->first())
        std::printf("no title for %s\n", qPrintable(path));
    delete result;
    return taken;
}

void measureQueries(const QTemporaryDir &folder, const QSparqlConnectionOptions &options, int files)
{
    QSparqlConnection connection(QStringLiteral("QTRACKER"), options);
    std::printf("title, store opened for it  %.1f ms\n", queryTime(connection, tonePath(folder, 0)));
    std::vector<double> times;
    for (int number = 0; number < Queries; ++number)
        times.push_back(queryTime(connection, tonePath(folder, number * files / Queries)));
    std::sort(times.begin(), times.end());
    std::printf("title, store open           median %.2f ms, worst of %d: %.2f ms\n", times[Queries / 2], Queries,
                times.back());
}

} // namespace

/** bench_tones [FILES]: with so many tones. */
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int files = arguments.size() > 1 ? arguments[1].toInt() : UsualFiles;
    const QTemporaryDir folder;
    for (int number = 0; number < files; ++number) {
        if (!Support::writeTone(tonePath(folder, number), QStringLiteral("Title of tone %1").arg(number)))
            return 1;
    }
    QSparqlConnectionOptions options;
    options.setStoreFolder(folder.filePath(QStringLiteral("store")));
    measureFill(folder, options, "first fill");
    measureFill(folder, options, "nothing has changed");
    measureQueries(folder, options, files);
    return 0;
}
