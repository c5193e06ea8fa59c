// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"
#include "tests/support/places.h"
#include "tests/support/privatebus.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

namespace {

const char Key[] = "Test.Value";
const char Service[] = "com.astel.context.Test.Value";
const char Path[] = "/com/astel/context/Test/Value";
const char Interface[] = "com.astel.context.Property";

/** The elements of an interface with their attributes in a fixed order, annotations left out. */
QStringList interfaceOf(const QString &xml)
{
    QStringList result;
    QXmlStreamReader reader(xml);
    bool inside = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.name() == QLatin1String("interface"))
            inside = reader.isStartElement() && reader.attributes().value("name") == QLatin1String(Interface);
        if (!inside || !reader.isStartElement())
            continue;
        QStringList attributes;
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            attributes.append(attribute.name().toString() + '=' + attribute.value().toString());
        attributes.sort();
        result.append(reader.name().toString() + ' ' + attributes.join(' '));
    }
    return result;
}

} // namespace

class TestContextPublisher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void answersWithTheValueOfTheMoment();
    void exportsTheCommittedInterface();
    void isNotPublishedTwice();
    void leavesTheBusWithItsEnd();
    void isNotPublishedWithoutABus();

private:
    QVariant read() const;

    Support::PrivateBus m_bus;
};

void TestContextPublisher::initTestCase()
{
    QVERIFY(m_bus.isRunning());
}

QVariant TestContextPublisher::read() const
{
    const QDBusConnection reader = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "reader");
    QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, Interface, "get");
    const QDBusMessage answer = reader.call(call, QDBus::BlockWithGui);
    return qvariant_cast<QDBusVariant>(answer.arguments().value(0)).variant();
}

void TestContextPublisher::answersWithTheValueOfTheMoment()
{
    ContextPublisher publisher(Key, "first");
    QVERIFY(publisher.isPublished());
    QCOMPARE(read(), QVariant("first"));
    publisher.publish("second");
    QCOMPARE(read(), QVariant("second"));
}

void TestContextPublisher::exportsTheCommittedInterface()
{
    const ContextPublisher publisher(Key, 0);
    const QDBusConnection reader = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "reader");
    QDBusMessage call
        = QDBusMessage::createMethodCall(Service, Path, "org.freedesktop.DBus.Introspectable", "Introspect");
    const QString live = reader.call(call, QDBus::BlockWithGui).arguments().value(0).toString();
    QFile committed(Places::source("platform/context/com.astel.context.Property.xml"));
    QVERIFY(committed.open(QIODevice::ReadOnly));
    QVERIFY(interfaceOf(live).contains("signal name=changed"));
    QCOMPARE(interfaceOf(live), interfaceOf(committed.readAll()));
}

void TestContextPublisher::isNotPublishedTwice()
{
    const ContextPublisher publisher(Key, "first");
    const ContextPublisher sameProcess(Key, "second");
    QVERIFY(!sameProcess.isPublished());
    const ContextPublisher otherConnection(Key, "third",
                                           QDBusConnection::connectToBus(QDBusConnection::SessionBus, "other"));
    QVERIFY(!otherConnection.isPublished());
    QCOMPARE(read(), QVariant("first"));
}

void TestContextPublisher::leavesTheBusWithItsEnd()
{
    auto publisher = std::make_unique<ContextPublisher>(Key, "first");
    QVERIFY(Support::PrivateBus::waitForService(Service));
    publisher.reset();
    QVERIFY(Support::PrivateBus::waitForService(Service, false));
}

void TestContextPublisher::isNotPublishedWithoutABus()
{
    ContextPublisher publisher(Key, "first", QDBusConnection("never connected"));
    QVERIFY(!publisher.isPublished());
    publisher.publish("second");
}

QTEST_GUILESS_MAIN(TestContextPublisher)
#include "tst_contextpublisher.moc"
