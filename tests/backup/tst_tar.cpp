// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/tar.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <numeric>

using Backup::readTar;
using Backup::TarMember;
using Backup::writeTar;

class TestTar : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatItWrites_data();
    void readsWhatItWrites();
    void otherProgramsReadIt();
    void refusesWhatOtherProgramsWrite();
    void refusesWhatIsNoPlainFile_data();
    void refusesWhatIsNoPlainFile();
    void refusesASizeThatIsNone_data();
    void refusesASizeThatIsNone();
};

void TestTar::readsWhatItWrites_data()
{
    QTest::addColumn<QList<TarMember>>("members");

    QTest::newRow("nothing") << QList<TarMember>();
    QTest::newRow("empty file") << QList<TarMember>{{"a", ""}};
    QTest::newRow("a block") << QList<TarMember>{{"a", QByteArray(512, 'x')}};
    QTest::newRow("a byte more") << QList<TarMember>{{"a", QByteArray(513, 'x')}, {"b/c", "text"}};
    QTest::newRow("zeros") << QList<TarMember>{{"a", QByteArray(1024, '\0')}, {"b", QByteArray(3, '\0')}};
    QTest::newRow("long name") << QList<TarMember>{{QByteArray(99, 'n'), "text"}};
}

void TestTar::readsWhatItWrites()
{
    QFETCH(const QList<TarMember>, members);
    const QByteArray bytes = writeTar(members);
    QCOMPARE(bytes.size() % 512, 0);
    const auto read = readTar(bytes);
    QVERIFY(read);
    QCOMPARE(*read, members);
}

void TestTar::otherProgramsReadIt()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("archive.tar"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(writeTar({{"one", "first\n"}, {"two/three", QByteArray(1000, 'x')}}));
    file.close();
    QProcess tar;
    tar.start("tar", {"-C", folder.path(), "-xvf", file.fileName()});
    QVERIFY(tar.waitForFinished());
    QCOMPARE(tar.readAllStandardError(), "");
    QCOMPARE(tar.readAllStandardOutput(), "one\ntwo/three\n");
    QFile three(folder.filePath("two/three"));
    QVERIFY(three.open(QIODevice::ReadOnly));
    QCOMPARE(three.readAll(), QByteArray(1000, 'x'));
}

void TestTar::refusesWhatOtherProgramsWrite()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("one"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("first\n");
    file.close();
    QProcess tar;
    tar.start("tar", {"-C", folder.path(), "-cf", "-", "one"});
    QVERIFY(tar.waitForFinished());
    const auto read = readTar(tar.readAllStandardOutput());
    QVERIFY(!read);
    QVERIFY(read.error().text.contains("not a backup"));
}

void TestTar::refusesWhatIsNoPlainFile_data()
{
    QTest::addColumn<char>("kind");
    QTest::addColumn<QByteArray>("target");

    QTest::newRow("hard link") << '1' << QByteArray("/etc/passwd");
    QTest::newRow("symbolic link") << '2' << QByteArray("/etc/passwd");
    QTest::newRow("symbolic link upwards") << '2' << QByteArray("../../.profile");
    QTest::newRow("device") << '3' << QByteArray();
    QTest::newRow("folder") << '5' << QByteArray();
    QTest::newRow("pipe") << '6' << QByteArray();
    QTest::newRow("long name") << 'L' << QByteArray();
    QTest::newRow("long name of POSIX") << 'x' << QByteArray();
    QTest::newRow("a file with a target") << '0' << QByteArray("/etc/passwd");
}

void TestTar::refusesWhatIsNoPlainFile()
{
    QFETCH(const char, kind);
    QFETCH(const QByteArray, target);
    QByteArray bytes = writeTar({{"one", "first"}, {"two", "second"}});
    QByteArray header = bytes.mid(1024, 512);
    header[156] = kind;
    header.replace(157, target.size(), target);
    // With a checksum that is right, as it would be in an archive made on purpose.
    header.replace(148, 8, QByteArray(8, ' '));
    const int sum
        = std::accumulate(header.cbegin(), header.cend(), 0, [](int so, char byte) { return so + uchar(byte); });
    header.replace(148, 7, QByteArray::number(sum, 8).rightJustified(6, '0') + '\0');
    bytes.replace(1024, 512, header);
    const auto read = readTar(bytes);
    QVERIFY(!read);
    QCOMPARE(read.error().text, "it is damaged");
}

void TestTar::refusesASizeThatIsNone_data()
{
    QTest::addColumn<QByteArray>("size");

    QTest::newRow("negative") << QByteArray("-0000000001");
    QTest::newRow("words") << QByteArray("aaaaaaaaaaa");
    QTest::newRow("far too large") << QByteArray("77777777777");
    QTest::newRow("empty") << QByteArray(11, '\0');
}

void TestTar::refusesASizeThatIsNone()
{
    QFETCH(const QByteArray, size);
    QByteArray bytes = writeTar({{"one", "first"}, {"two", "second"}});
    bytes.replace(1024 + 124, size.size(), size);
    QVERIFY(!readTar(bytes));
}

QTEST_GUILESS_MAIN(TestTar)
#include "tst_tar.moc"
