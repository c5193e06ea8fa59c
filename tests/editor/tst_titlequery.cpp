// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/titlequery.h"

#include <QTest>

class TestTitleQuery : public QObject
{
    Q_OBJECT

private slots:
    void asksByTheEscapedAddress_data();
    void asksByTheEscapedAddress();
};

void TestTitleQuery::asksByTheEscapedAddress_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("address");
    QTest::newRow("plain") << "/tones/Bell_2.aac"
                           << "file:///tones/Bell_2.aac";
    QTest::newRow("blanks") << "/ring tones/Clock alert 1.aac"
                            << "file:///ring%20tones/Clock%20alert%201.aac";
    QTest::newRow("other letters") << "/Früh.aac"
                                   << "file:///Fr%C3%BCh.aac";
    QTest::newRow("a quotation mark") << "/a\"b.aac"
                                      << "file:///a%22b.aac";
    QTest::newRow("what separates the parts of an address") << "/50%#1?.aac"
                                                            << "file:///50%25%231%3F.aac";
}

void TestTitleQuery::asksByTheEscapedAddress()
{
    QFETCH(QString, path);
    QFETCH(QString, address);
    const QString start = "select nie:title(?u) ?u where { ?u a nmm:MusicPiece . ?u nie:url \"";
    QCOMPARE(titleQuery(path), start + address + "\"}");
}

QTEST_APPLESS_MAIN(TestTitleQuery)
#include "tst_titlequery.moc"
