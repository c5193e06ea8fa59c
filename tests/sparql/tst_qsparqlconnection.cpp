// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sparql/qsparqlconnection.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/sparql/sparqlliteral.h"

#include <memory>
#include <QDateTime>
#include <QFile>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QUrl>

namespace {

constexpr auto Patience = 30'000;

QString insertion(const QString &url, const QString &title)
{
    return QStringLiteral("insert data { _:t a nmm:MusicPiece, nfo:FileDataObject ; nie:url %1 ; nie:title %2 }")
        .arg(sparqlLiteral(url), sparqlLiteral(title));
}

QString titleQuery(const QString &url)
{
    return "select nie:title(?u) ?u where { ?u a nmm:MusicPiece . ?u nie:url \"" + url + "\"}";
}

} // namespace

class TestQSparqlConnection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theStoreLiesInTheUsersCache();
    void aTitleIsFoundByTheAddressOfItsFile();
    void anyTitleComesBackAsItWentIn_data();
    void anyTitleComesBackAsItWentIn();
    void aResultIsEmptyUntilItHasFinished();
    void rowsAreVisitedInTurn();
    void valuesKeepTheirTypes();
    void anUnknownFileHasNoRow();
    void aQueryThatIsNoneEndsInAnError();
    void anUnknownDriverIsInvalid();
    void aStoreThatCannotBeOpenedIsInvalid();
    void aDamagedStoreIsReplaced_data();
    void aDamagedStoreIsReplaced();
    void connectionsShareTheStore();
    void whatWasStoredOutlivesItsConnection();
    void aResetStoreIsEmpty();
    void resultsAndConnectionsMayGoAtAnyTime();
    void finishedArrivesInTheThreadThatAsked();

private:
    std::unique_ptr<QSparqlConnection> connection() const;
    void change(QSparqlConnection &connection, const QString &text);
    QSparqlResult *ask(QSparqlConnection &connection, const QString &text);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestQSparqlConnection::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

std::unique_ptr<QSparqlConnection> TestQSparqlConnection::connection() const
{
    QSparqlConnectionOptions options;
    options.setStoreFolder(m_folder->filePath("store"));
    return std::make_unique<QSparqlConnection>("QTRACKER", options);
}

void TestQSparqlConnection::change(QSparqlConnection &connection, const QString &text)
{
    auto *result = connection.exec(QSparqlQuery(text, QSparqlQuery::InsertStatement));
    QTRY_VERIFY_WITH_TIMEOUT(result->isFinished(), Patience);
    QVERIFY2(!result->hasError(), qPrintable(result->lastError().message()));
}

QSparqlResult *TestQSparqlConnection::ask(QSparqlConnection &connection, const QString &text)
{
    auto *result = connection.exec(QSparqlQuery(text));
    return QTest::qWaitFor([result] { return result->isFinished(); }, Patience) ? result : nullptr;
}

void TestQSparqlConnection::theStoreLiesInTheUsersCache()
{
    QSparqlConnection connection("QTRACKER");
    change(connection, insertion("file:///home.aac", "Home"));
    const auto cache = qEnvironmentVariable("XDG_CACHE_HOME");
    QVERIFY(QFile::exists(cache + "/clock/tones/meta.db"));
}

void TestQSparqlConnection::aTitleIsFoundByTheAddressOfItsFile()
{
    const auto c = connection();
    const auto url = QUrl::fromLocalFile("/tones/Früh am \"Tag\" 100%.aac").toEncoded();
    change(*c, insertion(url, "Early in the day"));
    auto *result = ask(*c, titleQuery(url));
    QVERIFY(result && result->first());
    QCOMPARE(result->value(0).toString(), "Early in the day");
    QCOMPARE(result->size(), 1);
    QVERIFY(!result->next());
}

void TestQSparqlConnection::anyTitleComesBackAsItWentIn_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("quotes") << R"(The "best" of 'all')";
    QTest::newRow("backslashes") << R"(a\b\n\\)";
    QTest::newRow("ends in a backslash") << R"(a\)";
    QTest::newRow("lines") << "one\ntwo\r\nthree\ttab";
    QTest::newRow("braces and comments") << "} ; # { ?u }";
    QTest::newRow("an attack") << R"(x" } ; delete where { ?u a nmm:MusicPiece } #)";
    QTest::newRow("other alphabets") << QString::fromUtf8("صباح ☀️ 朝 𝄞");
}

void TestQSparqlConnection::anyTitleComesBackAsItWentIn()
{
    QFETCH(QString, title);
    const auto c = connection();
    change(*c, insertion("file:///a.aac", title));
    auto *result = ask(*c, titleQuery("file:///a.aac"));
    QVERIFY(result && result->first());
    QCOMPARE(result->value(0).toString(), title);
}

void TestQSparqlConnection::aResultIsEmptyUntilItHasFinished()
{
    const auto c = connection();
    auto *result = c->exec(QSparqlQuery(titleQuery("file:///a.aac")));
    QSignalSpy finished(result, &QSparqlResult::finished);
    QVERIFY(!result->isFinished());
    QVERIFY(!result->first());
    QVERIFY(!result->hasError());
    QCOMPARE(result->size(), -1);
    QVERIFY(!result->value(0).isValid());
    QVERIFY(finished.wait(Patience));
    QVERIFY(result->isFinished());
    QCOMPARE(finished.size(), 1);
}

void TestQSparqlConnection::rowsAreVisitedInTurn()
{
    const auto c = connection();
    for (const char *name : {"c", "a", "b"})
        change(*c, insertion(QStringLiteral("file:///%1").arg(name), name));
    auto *result = ask(*c, "select ?title where { ?u a nmm:MusicPiece ; nie:title ?title } order by ?title");
    QVERIFY(result);
    QCOMPARE(result->size(), 3);
    QCOMPARE(result->variableName(0), "title");
    QStringList titles;
    while (result->next())
        titles += result->stringValue(0);
    QCOMPARE(titles, QStringList({"a", "b", "c"}));
    QVERIFY(!result->next());
    QVERIFY(!result->isValid());
    QVERIFY(result->first());
    QCOMPARE(result->stringValue(0), "a");
    QVERIFY(!result->value(1).isValid());
}

void TestQSparqlConnection::valuesKeepTheirTypes()
{
    const auto c = connection();
    change(*c,
           "insert data { _:t a nmm:MusicPiece, nfo:FileDataObject ; nie:url \"file:///a\" ; nfo:duration 7 ; "
           "nfo:fileLastModified \"2026-03-09T07:30:00Z\" }");
    auto *result = ask(*c,
                       "select nfo:duration(?u) nfo:fileLastModified(?u) nie:title(?u) 1.5 (7 = 7) "
                       "where { ?u a nmm:MusicPiece }");
    QVERIFY(result && result->first());
    QCOMPARE(result->value(0), QVariant(7LL));
    QCOMPARE(result->value(1).toDateTime(), QDateTime({2026, 3, 9}, {7, 30}, Qt::UTC));
    QVERIFY(!result->value(2).isValid());
    QCOMPARE(result->value(3).toDouble(), 1.5);
    QCOMPARE(result->value(4), QVariant(true));
}

void TestQSparqlConnection::anUnknownFileHasNoRow()
{
    const auto c = connection();
    auto *result = ask(*c, titleQuery("file:///nobody.aac"));
    QVERIFY(result && !result->hasError());
    QVERIFY(!result->first());
    QCOMPARE(result->size(), 0);
}

void TestQSparqlConnection::aQueryThatIsNoneEndsInAnError()
{
    const auto c = connection();
    auto *result = ask(*c, "what is the title");
    QVERIFY(result && result->hasError());
    QCOMPARE(result->lastError().type(), QSparqlError::StatementError);
    QVERIFY(!result->lastError().message().isEmpty());
    QVERIFY(!result->first());
    QVERIFY(c->isValid());
}

void TestQSparqlConnection::anUnknownDriverIsInvalid()
{
    QSparqlConnection c("QNOTHING");
    QVERIFY(!c.isValid());
    auto *result = c.exec(QSparqlQuery(titleQuery("file:///a.aac")));
    QVERIFY(!result->isFinished());
    QSignalSpy finished(result, &QSparqlResult::finished);
    QVERIFY(finished.wait(Patience));
    QCOMPARE(result->lastError().type(), QSparqlError::ConnectionError);
    QVERIFY(!result->first());
}

void TestQSparqlConnection::aStoreThatCannotBeOpenedIsInvalid()
{
    // A file stands where the folder should be.
    QFile inTheWay(m_folder->filePath("file"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QSparqlConnectionOptions options;
    options.setStoreFolder(m_folder->filePath("file/store"));
    QSparqlConnection c("QTRACKER", options);
    auto *result = ask(c, titleQuery("file:///a.aac"));
    QVERIFY(result && result->hasError());
    QCOMPARE(result->lastError().type(), QSparqlError::ConnectionError);
    QVERIFY(!c.isValid());
}

void TestQSparqlConnection::aDamagedStoreIsReplaced_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("count");
    QTest::newRow("no database at all") << 0 << 100;
    QTest::newRow("damaged inside") << 12'288 << 800'000;
}

void TestQSparqlConnection::aDamagedStoreIsReplaced()
{
    QFETCH(int, from);
    QFETCH(int, count);
    change(*connection(), insertion("file:///a.aac", "Before"));
    QFile database(m_folder->filePath("store/meta.db"));
    QVERIFY(database.open(QIODevice::ReadWrite) && database.seek(from));
    QCOMPARE(database.write(QByteArray(count, 'x')), count);
    database.close();

    const auto c = connection();
    change(*c, insertion("file:///a.aac", "After"));
    auto *result = ask(*c, titleQuery("file:///a.aac"));
    QVERIFY(result && result->first());
    QCOMPARE(result->stringValue(0), "After");
    QVERIFY(c->isValid());
}

void TestQSparqlConnection::connectionsShareTheStore()
{
    const auto one = connection();
    const auto other = connection();
    change(*one, insertion("file:///a.aac", "Shared"));
    auto *result = ask(*other, titleQuery("file:///a.aac"));
    QVERIFY(result && result->first());
    QCOMPARE(result->stringValue(0), "Shared");
}

void TestQSparqlConnection::whatWasStoredOutlivesItsConnection()
{
    change(*connection(), insertion("file:///a.aac", "Kept"));
    const auto c = connection();
    auto *result = ask(*c, titleQuery("file:///a.aac"));
    QVERIFY(result && result->first());
    QCOMPARE(result->stringValue(0), "Kept");
}

void TestQSparqlConnection::aResetStoreIsEmpty()
{
    const auto c = connection();
    change(*c, insertion("file:///a.aac", "Gone"));
    c->reset();
    auto *result = ask(*c, titleQuery("file:///a.aac"));
    QVERIFY(result && !result->hasError());
    QVERIFY(!result->first());
}

void TestQSparqlConnection::resultsAndConnectionsMayGoAtAnyTime()
{
    QPointer<QSparqlResult> left;
    for (int round = 0; round < 20; ++round) {
        const auto c = connection();
        delete c->exec(QSparqlQuery(titleQuery("file:///a.aac")));
        left = c->exec(QSparqlQuery(titleQuery("file:///b.aac")));
        auto *finished = c->exec(QSparqlQuery(titleQuery("file:///c.aac")));
        connect(finished, &QSparqlResult::finished, finished, &QObject::deleteLater);
        // Another moment each time, from before the store is open until all is answered.
        for (int turn = 0; turn < round; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    QVERIFY(!left);
}

void TestQSparqlConnection::finishedArrivesInTheThreadThatAsked()
{
    QThread *answered = nullptr;
    QThread *asking = QThread::create([&] {
        QEventLoop loop;
        const auto c = connection();
        auto *result = c->exec(QSparqlQuery(titleQuery("file:///a.aac")));
        connect(result, &QSparqlResult::finished, &loop, [&] {
            answered = QThread::currentThread();
            loop.quit();
        });
        loop.exec();
    });
    asking->start();
    QVERIFY(asking->wait(Patience));
    QCOMPARE(answered, asking);
    delete asking;
}

QTEST_GUILESS_MAIN(TestQSparqlConnection)
#include "tst_qsparqlconnection.moc"
