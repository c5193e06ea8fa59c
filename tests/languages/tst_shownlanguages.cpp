// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/languages/languages.h"
#include "tests/support/privatebus.h"

#include <QDir>
#include <QProcess>
#include <QTest>

/** On a narrow phone no text is cut off in any language. What is seen is kept as pictures, for people to look at. */
class TestShownLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void allTextsAreSeen_data();
    void allTextsAreSeen();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QDir m_pictures{QCoreApplication::applicationDirPath() + "/../screenshots"};
};

void TestShownLanguages::initTestCase()
{
    QVERIFY(m_pictures.mkpath("."));
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
}

void TestShownLanguages::allTextsAreSeen_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("textScale");
    for (const QString &language : builtLanguages()) {
        QTest::newRow(qPrintable(language)) << language << "1";
        QTest::newRow(qPrintable(language + ", text of double size")) << language << "2";
    }
}

void TestShownLanguages::allTextsAreSeen()
{
    QFETCH(QString, language);
    QFETCH(QString, textScale);
    QProcess show;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", language + ".UTF-8");
    environment.insert("CLOCK_REDUCED_MOTION", "1");
    environment.insert("CLOCK_TEXT_SCALE", textScale);
    show.setProcessEnvironment(environment);
    show.start(QCoreApplication::applicationDirPath() + "/showlanguage", {language, m_pictures.path()});
    QVERIFY(show.waitForFinished(60'000));
    const QByteArray findings = show.readAllStandardOutput();
    QVERIFY2(findings.isEmpty(), findings.constData());
    QVERIFY(show.exitStatus() == QProcess::NormalExit && show.exitCode() == 0);
}

QTEST_GUILESS_MAIN(TestShownLanguages)
#include "tst_shownlanguages.moc"
