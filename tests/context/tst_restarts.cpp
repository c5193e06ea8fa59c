// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"
#include "platform/context/contextpublisher.h"
#include "tests/support/privatebus.h"

#include <atomic>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <random>

namespace {

const char Key[] = "Test.Restarted";
constexpr int Lives = 100;
constexpr int ValuesOfALife = 100;
constexpr unsigned Seed = 20261120;

/**
 * Comes to the bus and goes from it again and again, in a thread of its own, and changes the value at any time: while
 * its name is noticed, while it is read, after that. Stands still after the last change of a life until it may go on.
 */
class Provider : public QThread
{
public:
    ~Provider() override
    {
        m_end = true;
        goOn();
        wait();
    }

    void goOn() { m_mayGoOn.release(); }
    /** The value that stands still; 0 until then. */
    int last() const { return m_last; }

protected:
    void run() override
    {
        std::mt19937 random(Seed);
        for (int life = 1; life <= Lives && !m_end; ++life) {
            live(life * ValuesOfALife, random);
            // Readers are answered by this thread.
            while (!m_mayGoOn.tryAcquire(1, 1))
                QCoreApplication::processEvents();
            m_last = 0;
            // Whoever still waits for an answer gets an error.
            m_publisher.reset();
            QDBusConnection::disconnectFromBus("provider");
        }
    }

private:
    void live(int value, std::mt19937 &random)
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "provider");
        m_publisher = std::make_unique<ContextPublisher>(Key, value, bus);
        const auto changes = random() % 8;
        for (unsigned change = 0; change < changes; ++change) {
            for (auto turns = random() % 400; turns > 0; --turns)
                QCoreApplication::processEvents();
            m_publisher->publish(++value);
        }
        m_last = value;
    }

    std::unique_ptr<ContextPublisher> m_publisher;
    std::atomic<int> m_last = 0;
    std::atomic<bool> m_end = false;
    QSemaphore m_mayGoOn;
};

} // namespace

class TestRestarts : public QObject
{
    Q_OBJECT

private slots:
    void noChangeIsLostOverRestarts();

private:
    Support::PrivateBus m_bus;
};

void TestRestarts::noChangeIsLostOverRestarts()
{
    QVERIFY(m_bus.isRunning());
    ContextProperty property(Key);
    property.subscribe();
    QList<int> seen;
    connect(&property, &ContextProperty::valueChanged, &property, [&] { seen.append(property.value().toInt()); });
    Provider provider;
    provider.start();
    for (int life = 1; life <= Lives; ++life) {
        QTRY_VERIFY_WITH_TIMEOUT(provider.last() > 0, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(property.value().toInt(), provider.last(), 20000);
        provider.goOn();
        if (life < Lives)
            QTRY_VERIFY_WITH_TIMEOUT(provider.last() == 0 || provider.last() / ValuesOfALife > life, 20000);
    }
    // Each is told once at most, and none after a later one.
    QVERIFY(std::is_sorted(seen.begin(), seen.end()));
    QCOMPARE(std::adjacent_find(seen.begin(), seen.end()), seen.end());
}

QTEST_GUILESS_MAIN(TestRestarts)
#include "tst_restarts.moc"
