// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "backup/backupclientadaptor.h"
#include "backup/clockbackup.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QXmlStreamReader>

namespace {

constexpr auto Service = "com.korvo.clock.Backup";
constexpr auto Path = "/backupclient";

} // namespace

/** Answers a call otherwise, which only shows where it is called by name. */
class OtherParticipant : public ClockBackup
{
    Q_OBJECT

public slots:
    uchar backupStarts() { return 1; }
    uchar backupFinished() { return 2; }
    uchar restoreStarts() { return 3; }
    uchar restoreFinished() { return 4; }
};

class TestClockBackup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyCallAnswersZeroAndLogsItsName_data();
    void everyCallAnswersZeroAndLogsItsName();
    void introspectionShowsTheFourMethods();
    void theParticipantItselfIsNotExported();
    void everyCallIsPassedOnByName();
    void theSlotsStandInTheirOrder();
    void theParticipantDeclaresItsSignalAndNeverEmitsIt();

private:
    QDBusMessage call(const QString &interface, const QString &method);

    Support::PrivateBus m_bus;
    ClockBackup m_participant;
};

QDBusMessage TestClockBackup::call(const QString &interface, const QString &method)
{
    // Qt answers calls to this process itself, through the same dispatch as those from the bus.
    const auto message = QDBusMessage::createMethodCall(Service, Path, interface, method);
    return QDBusConnection::sessionBus().call(message, QDBus::BlockWithGui);
}

void TestClockBackup::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    new backupclientAdaptor(&m_participant);
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerService(Service));
    QVERIFY(bus.registerObject(Path, &m_participant, QDBusConnection::ExportAdaptors));
}

void TestClockBackup::everyCallAnswersZeroAndLogsItsName_data()
{
    QTest::addColumn<QString>("method");
    for (const char *method : {"backupStarts", "backupFinished", "restoreStarts", "restoreFinished"})
        QTest::newRow(method) << method;
}

void TestClockBackup::everyCallAnswersZeroAndLogsItsName()
{
    QFETCH(QString, method);
    const Support::LogCapture log;
    const QDBusMessage reply = call("com.korvo.backupclient", method);
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(reply.signature(), "y");
    QCOMPARE(reply.arguments().first().value<uchar>(), uchar(0));
    QCOMPARE(log.lines(QtDebugMsg), QStringList{method});
}

void TestClockBackup::introspectionShowsTheFourMethods()
{
    const QDBusMessage reply = call("org.freedesktop.DBus.Introspectable", "Introspect");
    QStringList found;
    QXmlStreamReader xml(reply.arguments().value(0).toString());
    bool isOurs = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"interface")
            isOurs = xml.attributes().value("name") == u"com.korvo.backupclient";
        if (!isOurs || !xml.isStartElement() || xml.name() == u"interface")
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        found += QStringList{xml.name().toString(), attributes.value("name").toString(),
                             attributes.value("direction").toString(), attributes.value("type").toString()}
                     .join(' ')
                     .trimmed();
    }
    const QString answer("arg  out y");
    const QStringList expected{"method backupStarts",  answer, "method backupFinished",  answer,
                               "method restoreStarts", answer, "method restoreFinished", answer};
    QCOMPARE(found, expected);
}

void TestClockBackup::theParticipantItselfIsNotExported()
{
    const QDBusMessage reply = call("org.freedesktop.DBus.Introspectable", "Introspect");
    QVERIFY(!reply.arguments().value(0).toString().contains("shouldQuit"));
    QCOMPARE(call("com.korvo.backupclient", "shouldQuit").type(), QDBusMessage::ErrorMessage);
}

void TestClockBackup::everyCallIsPassedOnByName()
{
    OtherParticipant participant;
    auto *adaptor = new backupclientAdaptor(&participant);
    QCOMPARE(adaptor->backupStarts(), uchar(1));
    QCOMPARE(adaptor->backupFinished(), uchar(2));
    QCOMPARE(adaptor->restoreStarts(), uchar(3));
    QCOMPARE(adaptor->restoreFinished(), uchar(4));
}

void TestClockBackup::theSlotsStandInTheirOrder()
{
    const QMetaObject &meta = backupclientAdaptor::staticMetaObject;
    QCOMPARE(meta.className(), "backupclientAdaptor");
    QByteArrayList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        slotNames.append(meta.method(i).name());
    QCOMPARE(slotNames, (QByteArrayList{"backupFinished", "backupStarts", "restoreFinished", "restoreStarts"}));
}

void TestClockBackup::theParticipantDeclaresItsSignalAndNeverEmitsIt()
{
    const QMetaObject &meta = ClockBackup::staticMetaObject;
    QCOMPARE(meta.className(), "ClockBackup");
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(meta.method(i).methodSignature());
    QCOMPARE(
        methods,
        (QByteArrayList{"shouldQuit()", "backupStarts()", "backupFinished()", "restoreStarts()", "restoreFinished()"}));
    const QSignalSpy asked(&m_participant, &ClockBackup::shouldQuit);
    for (const char *method : {"backupStarts", "backupFinished", "restoreStarts", "restoreFinished"})
        QCOMPARE(call("com.korvo.backupclient", method).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(asked.size(), 0);
}

QTEST_GUILESS_MAIN(TestClockBackup)
#include "tst_clockbackup.moc"
