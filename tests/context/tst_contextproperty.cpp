// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"
#include "platform/context/contextpublisher.h"
#include "tests/support/privatebus.h"

#include <csignal>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

namespace {

const char Key[] = "Test.Value";
const char ActivatedKey[] = "Test.Activated";

/** A provider that takes calls and never answers. */
class SilentObject : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &, const QDBusConnection &) override { return true; }
};

/** A provider that is too busy to answer, but still tells of changes. */
class RefusingObject : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        for (const int value : {1, 2}) {
            QDBusMessage signal = QDBusMessage::createSignal(message.path(), message.interface(), "changed");
            signal.setArguments({QVariant::fromValue(QDBusVariant(value))});
            connection.send(signal);
        }
        return connection.send(message.createErrorReply(QDBusError::NoReply, "busy"));
    }
};

} // namespace

class TestContextProperty : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hasNoValueBeforeItIsSubscribed();
    void announcesTheFirstValueOnce_data();
    void announcesTheFirstValueOnce();
    void announcesEveryChangeOnce();
    void containsChangesBeforeTheFirstAnswer();
    void readsNestedValuesWithTheirTypes();
    void keepsTheValueWhileTheProviderIsAway();
    void announcesAProviderThatIsBackOnce();
    void announcesAProviderThatComesLate();
    void isToldNothingAfterUnsubscribing();
    void mayUnsubscribeWhileItIsTold();
    void subscribesOnlyOnce();
    void doesNotWaitForASilentProvider();
    void keepsAChangeThatComesBeforeARefusal();
    void startsTheProviderAndOutlivesItsDeath();

private:
    /** Waits until whatever the provider has sent by now has arrived. */
    void settle();
    QDBusConnection provider() const { return QDBusConnection("provider"); }

    QTemporaryDir m_services;
    std::unique_ptr<Support::PrivateBus> m_bus;
};

void TestContextProperty::initTestCase()
{
    QFile service(m_services.filePath("activated.service"));
    QVERIFY(service.open(QIODevice::WriteOnly));
    service.write(QByteArray("[D-BUS Service]\nName=com.astel.context.") + ActivatedKey + "\nExec=" PROVIDER " "
                  + ActivatedKey + '\n');
    service.close();
    m_bus = std::make_unique<Support::PrivateBus>(m_services.path());
    QVERIFY(m_bus->isRunning());
    QVERIFY(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "provider").isConnected());
}

void TestContextProperty::settle()
{
    // Two values published in order arrive in order.
    const QString key = "Test.Settle";
    ContextPublisher publisher(key, 0, provider());
    ContextProperty property(key);
    property.subscribe();
    QTRY_COMPARE(property.value().toInt(), 0);
    QTRY_VERIFY(property.value().isValid());
    publisher.publish(1);
    QTRY_COMPARE(property.value().toInt(), 1);
}

void TestContextProperty::hasNoValueBeforeItIsSubscribed()
{
    const ContextPublisher publisher(Key, 7, provider());
    const ContextProperty property(Key);
    QCOMPARE(property.key(), QString(Key));
    settle();
    QVERIFY(!property.value().isValid());
    QCOMPARE(property.value(12), QVariant(12));
}

void TestContextProperty::announcesTheFirstValueOnce_data()
{
    QTest::addColumn<QVariant>("initial");

    QTest::newRow("an empty map") << QVariant(QVariantMap());
    QTest::newRow("a map") << QVariant(QVariantMap{{"1", 5ULL}});
    QTest::newRow("a number") << QVariant(7);
    QTest::newRow("an empty text") << QVariant(QString(""));
}

void TestContextProperty::announcesTheFirstValueOnce()
{
    QFETCH(const QVariant, initial);
    const ContextPublisher publisher(Key, initial, provider());
    QVERIFY(publisher.isPublished());
    ContextProperty property(Key);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    QVERIFY(spy.isEmpty());
    QVERIFY(spy.wait());
    settle();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(property.value(QVariant("fallback")), initial);
}

void TestContextProperty::announcesEveryChangeOnce()
{
    ContextPublisher publisher(Key, 0, provider());
    ContextProperty property(Key);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    QTRY_COMPARE(spy.size(), 1);
    QVariantList seen;
    connect(&property, &ContextProperty::valueChanged, &property, [&] { seen.append(property.value()); });
    publisher.publish(1);
    publisher.publish(2);
    publisher.publish(2);
    settle();
    QCOMPARE(seen, QVariantList({1, 2, 2}));
}

void TestContextProperty::containsChangesBeforeTheFirstAnswer()
{
    ContextPublisher publisher(Key, 0, provider());
    ContextProperty property(Key);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    publisher.publish(1);
    publisher.publish(2);
    settle();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(property.value().toInt(), 2);
}

void TestContextProperty::readsNestedValuesWithTheirTypes()
{
    const QVariantMap inner{{"8", 1298448000000000000ULL}};
    const QVariantMap map{{"7", 18446744073709551615ULL}, {"inner", inner}, {"list", QVariantList{1U, inner}}};
    ContextPublisher publisher(Key, map, provider());
    ContextProperty property(Key);
    property.subscribe();
    QTRY_COMPARE(property.value().toMap(), map);
    QCOMPARE(property.value().metaType(), QMetaType::fromType<QVariantMap>());
    QCOMPARE(property.value().toMap().value("7").metaType(), QMetaType::fromType<qulonglong>());
    const QVariantMap change{{"1", 2ULL}};
    publisher.publish(change);
    QTRY_COMPARE(property.value().toMap(), change);
}

void TestContextProperty::keepsTheValueWhileTheProviderIsAway()
{
    auto publisher = std::make_unique<ContextPublisher>(Key, 5, provider());
    ContextProperty property(Key);
    property.subscribe();
    QTRY_COMPARE(property.value().toInt(), 5);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    publisher.reset();
    settle();
    QVERIFY(spy.isEmpty());
    QCOMPARE(property.value().toInt(), 5);
}

void TestContextProperty::announcesAProviderThatIsBackOnce()
{
    auto publisher = std::make_unique<ContextPublisher>(Key, 5, provider());
    ContextProperty property(Key);
    property.subscribe();
    QTRY_COMPARE(property.value().toInt(), 5);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    publisher.reset();
    settle();
    publisher = std::make_unique<ContextPublisher>(Key, 5, provider());
    QVERIFY(spy.wait());
    settle();
    QCOMPARE(spy.size(), 1);
    publisher->publish(6);
    settle();
    QCOMPARE(spy.size(), 2);
    QCOMPARE(property.value().toInt(), 6);
}

void TestContextProperty::announcesAProviderThatComesLate()
{
    ContextProperty property(Key);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    settle();
    QVERIFY(spy.isEmpty());
    const ContextPublisher publisher(Key, 5, provider());
    QVERIFY(spy.wait());
    settle();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(property.value().toInt(), 5);
}

void TestContextProperty::isToldNothingAfterUnsubscribing()
{
    ContextPublisher publisher(Key, 5, provider());
    ContextProperty property(Key);
    property.subscribe();
    QTRY_COMPARE(property.value().toInt(), 5);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.unsubscribe();
    publisher.publish(6);
    settle();
    QVERIFY(spy.isEmpty());
    QCOMPARE(property.value().toInt(), 5);
    property.subscribe();
    QVERIFY(spy.wait());
    QCOMPARE(property.value().toInt(), 6);
}

void TestContextProperty::mayUnsubscribeWhileItIsTold()
{
    ContextPublisher publisher(Key, 5, provider());
    ContextProperty property(Key);
    property.subscribe();
    QTRY_COMPARE(property.value().toInt(), 5);
    connect(&property, &ContextProperty::valueChanged, &property, &ContextProperty::unsubscribe);
    publisher.publish(6);
    publisher.publish(7);
    settle();
    QCOMPARE(property.value().toInt(), 6);
}

void TestContextProperty::subscribesOnlyOnce()
{
    ContextPublisher publisher(Key, 5, provider());
    ContextProperty property(Key);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    property.subscribe();
    settle();
    QCOMPARE(spy.size(), 1);
    publisher.publish(6);
    settle();
    QCOMPARE(spy.size(), 2);
}

void TestContextProperty::doesNotWaitForASilentProvider()
{
    SilentObject silent;
    QVERIFY(provider().registerVirtualObject("/com/astel/context/Test/Silent", &silent));
    QVERIFY(provider().registerService("com.astel.context.Test.Silent"));
    ContextProperty property("Test.Silent");
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    // A provider of this very thread: waiting for it would end in the bus's timeout of 25 s.
    QElapsedTimer timer;
    timer.start();
    property.subscribe();
    QVERIFY(!property.value().isValid());
    settle();
    QVERIFY(timer.elapsed() < 20000);
    QVERIFY(spy.isEmpty());
    provider().unregisterService("com.astel.context.Test.Silent");
    provider().unregisterObject("/com/astel/context/Test/Silent");
}

void TestContextProperty::keepsAChangeThatComesBeforeARefusal()
{
    RefusingObject refusing;
    QVERIFY(provider().registerVirtualObject("/com/astel/context/Test/Refusing", &refusing));
    QVERIFY(provider().registerService("com.astel.context.Test.Refusing"));
    ContextProperty property("Test.Refusing");
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    QVERIFY(spy.wait());
    settle();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(property.value(), QVariant(2));
    provider().unregisterService("com.astel.context.Test.Refusing");
    provider().unregisterObject("/com/astel/context/Test/Refusing");
}

void TestContextProperty::startsTheProviderAndOutlivesItsDeath()
{
    ContextProperty property(ActivatedKey);
    QSignalSpy spy(&property, &ContextProperty::valueChanged);
    property.subscribe();
    QVERIFY(spy.wait());
    settle();
    QCOMPARE(spy.size(), 1);
    const pid_t first = property.value().toInt();
    QVERIFY(first > 0);

    const QString service = QString("com.astel.context.") + ActivatedKey;
    QCOMPARE(kill(first, SIGKILL), 0);
    QVERIFY(Support::PrivateBus::waitForService(service, false));
    settle();
    QCOMPARE(property.value().toInt(), first);
    QCOMPARE(spy.size(), 1);

    ContextProperty other(ActivatedKey);
    other.subscribe();
    QVERIFY(spy.wait());
    QVERIFY(property.value().toInt() != first);
    kill(property.value().toInt(), SIGKILL);
    QVERIFY(Support::PrivateBus::waitForService(service, false));
}

QTEST_GUILESS_MAIN(TestContextProperty)
#include "tst_contextproperty.moc"
