// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rtc/bootmoments.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr long long Now = 1795150800;

} // namespace

class TestBootMoments : public QObject
{
    Q_OBJECT

private slots:
    void oneFileTellsTheMoment_data();
    void oneFileTellsTheMoment();
    void filesOfOthersAreReadByTheirOwnersNumber();
    void onlyPlainFilesAreRead();
    void missingFolderIsNoMoment();

private:
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    std::optional<long long> next() const { return Rtc::nextBootMoment(m_folder.path().toStdString(), Now); }

    QTemporaryDir m_folder;
    const QString m_own = QString::number(getuid());
};

void TestBootMoments::oneFileTellsTheMoment_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("valid");

    const QByteArray ahead = QByteArray::number(Now + 3600);
    QTest::newRow("ahead") << ahead << true;
    QTest::newRow("with a line end") << ahead + '\n' << true;
    QTest::newRow("now") << QByteArray::number(Now) << false;
    QTest::newRow("passed") << QByteArray::number(Now - 1) << false;
    QTest::newRow("further than a year") << QByteArray::number(Now + 367LL * 86400) << false;
    QTest::newRow("negative") << '-' + ahead << false;
    QTest::newRow("with a sign") << '+' + ahead << false;
    QTest::newRow("two lines") << ahead + '\n' + ahead << false;
    QTest::newRow("words") << QByteArray("tomorrow") << false;
    QTest::newRow("number and words") << ahead + " or so" << false;
    QTest::newRow("too large") << QByteArray(31, '9') << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("a fraction") << ahead + ".5" << false;
}

void TestBootMoments::oneFileTellsTheMoment()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, valid);

    write(m_own, content);
    QCOMPARE(next(), valid ? std::optional(Now + 3600) : std::nullopt);
}

void TestBootMoments::filesOfOthersAreReadByTheirOwnersNumber()
{
    write(m_own, QByteArray::number(Now + 3600));
    // A name that is not its owner's number, however early its moment.
    write("4711", QByteArray::number(Now + 60));
    write('.' + m_own, QByteArray::number(Now + 60));
    QCOMPARE(next(), std::optional(Now + 3600));
}

void TestBootMoments::onlyPlainFilesAreRead()
{
    write("elsewhere", QByteArray::number(Now + 3600));
    const QString own = m_folder.filePath(m_own);
    QFile::remove(own);
    QVERIFY(QFile::link(m_folder.filePath("elsewhere"), own));
    QCOMPARE(next(), std::nullopt);
    QVERIFY(QFile::remove(own));
    QCOMPARE(mkfifo(QFile::encodeName(own), 0600), 0);
    QCOMPARE(next(), std::nullopt);
    QVERIFY(QFile::remove(own));
}

void TestBootMoments::missingFolderIsNoMoment()
{
    QCOMPARE(Rtc::nextBootMoment("/nonexistent/folder", Now), std::nullopt);
}

QTEST_GUILESS_MAIN(TestBootMoments)
#include "tst_bootmoments.moc"
