// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/qsparqlconnection.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/tones/tonefiller.h"
#include "tests/support/places.h"
#include "tests/tones/tonefile.h"

#include <memory>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

using Support::writeTone;
using Tones::ToneFiller;

namespace {

constexpr auto Patience = 60'000;

/** For a file without a title in the store. */
const auto NoTitle = QStringLiteral("(none)");

} // namespace

class TestToneFiller : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void titlesAreFoundByTheirFiles();
    void aFileWithoutATitleHasNoRow();
    void titlesMayHoldAnything();
    void theTonesThatShipHaveTheirTitles();
    void theSecondFillReadsNothing();
    void onlyWhatHasChangedIsReadAgain();
    void whatIsGoneIsForgotten();
    void changesAreFollowed();
    void aFolderThatIsMadeLaterIsFilled();
    void aDamagedStoreIsFilledAnew();
    void aStoreThatCannotBeOpenedIsTold();
    void theFillerMayGoAtAnyTime();
    void theCallersThreadIsNotHeldUp();

private:
    [[nodiscard]] QString file(const QString &name) const
    {
        return QDir::cleanPath(m_folder->filePath("tones/" + name));
    }
    /** How many files were read; -1 if it took too long. */
    int fill();
    [[nodiscard]] int nextFill();
    QString title(const QString &name);

    std::unique_ptr<QTemporaryDir> m_folder;
    QSparqlConnectionOptions m_options;
    std::unique_ptr<ToneFiller> m_filler;
    std::unique_ptr<QSignalSpy> m_filled;
    std::unique_ptr<QSparqlConnection> m_connection;
};

void TestToneFiller::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(m_folder->filePath("tones")));
    m_options.setStoreFolder(m_folder->filePath("store"));
}

void TestToneFiller::cleanup()
{
    m_filler.reset();
    m_connection.reset();
}

int TestToneFiller::fill()
{
    m_filler = std::make_unique<ToneFiller>(QStringList{m_folder->filePath("tones"), m_folder->filePath("later")},
                                            m_options);
    m_filled = std::make_unique<QSignalSpy>(m_filler.get(), &ToneFiller::filled);
    m_filler->start();
    return nextFill();
}

int TestToneFiller::nextFill()
{
    if (m_filled->isEmpty() && !m_filled->wait(Patience))
        return -1;
    return m_filled->takeFirst().first().toInt();
}

QString TestToneFiller::title(const QString &name)
{
    if (!m_connection)
        m_connection = std::make_unique<QSparqlConnection>("QTRACKER", m_options);
    const auto url = QUrl::fromLocalFile(file(name)).toEncoded();
    auto *result = m_connection->exec(
        QSparqlQuery("select nie:title(?u) ?u where { ?u a nmm:MusicPiece . ?u nie:url \"" + QString(url) + "\"}"));
    if (!QTest::qWaitFor([result] { return result->isFinished(); }, Patience) || result->hasError())
        return {};
    return result->first() ? result->value(0).toString() : NoTitle;
}

void TestToneFiller::titlesAreFoundByTheirFiles()
{
    QVERIFY(writeTone(file("a.aac"), "Dew drops"));
    QVERIFY(writeTone(file("sub folder/Früh 100%.mp3"), "Früh am Tag"));
    QCOMPARE(fill(), 2);
    QCOMPARE(title("a.aac"), "Dew drops");
    QCOMPARE(title("sub folder/Früh 100%.mp3"), "Früh am Tag");
}

void TestToneFiller::aFileWithoutATitleHasNoRow()
{
    QVERIFY(writeTone(file("a.aac"), ""));
    QVERIFY(writeTone(file("b.aac"), "  "));
    QCOMPARE(fill(), 2);
    QCOMPARE(title("a.aac"), NoTitle);
    QCOMPARE(title("b.aac"), NoTitle);
}

void TestToneFiller::titlesMayHoldAnything()
{
    const QString odd = R"(a "b" \n c\ } ; delete where { ?u a nmm:MusicPiece } #)";
    QVERIFY(writeTone(file("a \"quoted\" name.aac"), odd));
    QVERIFY(writeTone(file("b.aac"), "two\nlines"));
    QCOMPARE(fill(), 2);
    QCOMPARE(title("a \"quoted\" name.aac"), odd);
    QCOMPARE(title("b.aac"), "two\nlines");
}

void TestToneFiller::theTonesThatShipHaveTheirTitles()
{
    const QDir shipped(Places::sharedData("sounds/ring-tones"));
    const auto names = shipped.entryList(QDir::Files);
    QVERIFY(names.size() > 12);
    for (const auto &name : names)
        QVERIFY(QFile::copy(shipped.filePath(name), file(name)));
    QCOMPARE(fill(), names.size());
    for (const auto &name : names)
        QCOMPARE(title(name), name == "No sound.aac" ? NoTitle : name.chopped(4));
}

void TestToneFiller::theSecondFillReadsNothing()
{
    QVERIFY(writeTone(file("a.aac"), "A"));
    QVERIFY(writeTone(file("b.aac"), ""));
    QCOMPARE(fill(), 2);
    QCOMPARE(fill(), 0);
    QCOMPARE(title("a.aac"), "A");
}

void TestToneFiller::onlyWhatHasChangedIsReadAgain()
{
    QVERIFY(writeTone(file("a.aac"), "A"));
    QVERIFY(writeTone(file("b.aac"), "B"));
    QCOMPARE(fill(), 2);
    m_filler.reset();
    QVERIFY(writeTone(file("b.aac"), "B, as it is called now"));
    QCOMPARE(fill(), 1);
    QCOMPARE(title("a.aac"), "A");
    QCOMPARE(title("b.aac"), "B, as it is called now");
}

void TestToneFiller::whatIsGoneIsForgotten()
{
    QVERIFY(writeTone(file("a.aac"), "A"));
    QVERIFY(writeTone(file("b.aac"), "B"));
    QCOMPARE(fill(), 2);
    m_filler.reset();
    QVERIFY(QFile::remove(file("a.aac")));
    QCOMPARE(fill(), 0);
    QCOMPARE(title("a.aac"), NoTitle);
    QCOMPARE(title("b.aac"), "B");
}

void TestToneFiller::changesAreFollowed()
{
    QVERIFY(writeTone(file("a.aac"), "A"));
    QCOMPARE(fill(), 1);
    QVERIFY(writeTone(file("new/b.aac"), "B"));
    QTRY_COMPARE_WITH_TIMEOUT(title("new/b.aac"), QString("B"), Patience);
    QVERIFY(writeTone(file("new/b.aac"), "Another title"));
    QTRY_COMPARE_WITH_TIMEOUT(title("new/b.aac"), QString("Another title"), Patience);
    QVERIFY(QFile::remove(file("a.aac")));
    QTRY_COMPARE_WITH_TIMEOUT(title("a.aac"), NoTitle, Patience);
}

void TestToneFiller::aFolderThatIsMadeLaterIsFilled()
{
    QCOMPARE(fill(), 0);
    QVERIFY(writeTone(file("../later/a.aac"), "Later"));
    QTRY_COMPARE_WITH_TIMEOUT(title("../later/a.aac"), QString("Later"), Patience);
}

void TestToneFiller::aDamagedStoreIsFilledAnew()
{
    QVERIFY(writeTone(file("a.aac"), "A"));
    QCOMPARE(fill(), 1);
    m_filler.reset();
    QFile database(m_folder->filePath("store/meta.db"));
    QVERIFY(database.open(QIODevice::ReadWrite));
    QCOMPARE(database.write(QByteArray(50'000, 'x')), 50'000);
    database.close();
    QCOMPARE(fill(), 1);
    QCOMPARE(title("a.aac"), "A");
}

void TestToneFiller::aStoreThatCannotBeOpenedIsTold()
{
    QFile inTheWay(m_folder->filePath("file"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    m_options.setStoreFolder(m_folder->filePath("file/store"));
    ToneFiller filler({m_folder->filePath("tones")}, m_options);
    QSignalSpy failed(&filler, &ToneFiller::failed);
    filler.start();
    QVERIFY(failed.wait(Patience));
    QVERIFY(!failed.first().first().toString().isEmpty());
}

void TestToneFiller::theFillerMayGoAtAnyTime()
{
    for (int number = 0; number < 40; ++number)
        QVERIFY(writeTone(file(QString::number(number) + ".aac"), "A"));
    for (int turns = 0; turns < 12; ++turns) {
        ToneFiller filler({m_folder->filePath("tones")}, m_options);
        filler.start();
        for (int turn = 0; turn < turns; ++turn)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    QVERIFY(fill() >= 0);
    QCOMPARE(title("39.aac"), "A");
}

void TestToneFiller::theCallersThreadIsNotHeldUp()
{
    for (int number = 0; number < 200; ++number)
        QVERIFY(writeTone(file(QString::number(number) + ".aac"), "A"));
    QElapsedTimer time;
    time.start();
    m_filler = std::make_unique<ToneFiller>(QStringList{m_folder->filePath("tones")}, m_options);
    m_filler->start();
    QVERIFY2(time.elapsed() < 200, qPrintable(QString::number(time.elapsed())));
    QSignalSpy filled(m_filler.get(), &ToneFiller::filled);
    int beats = 0;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&beats] { ++beats; });
    heart.start(1);
    QVERIFY(filled.wait(Patience));
    // Reading 200 files in this thread would leave no room for any.
    QVERIFY2(beats > 10, qPrintable(QString::number(beats)));
}

QTEST_GUILESS_MAIN(TestToneFiller)
#include "tst_tonefiller.moc"
