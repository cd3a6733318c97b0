#include "platform/DisplayWake.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>

namespace {

/// A session bus of its own.
class SessionBus {
public:
    SessionBus()
    {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        if (daemon_.waitForStarted() && daemon_.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    ~SessionBus()
    {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    bool isRunning() const { return daemon_.state() == QProcess::Running; }

private:
    QProcess daemon_;
};

/// Counts what a screen saver is told.
class ScreenSaver : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*bus*/) override
    {
        if (message.interface() == "org.freedesktop.ScreenSaver" &&
            message.member() == "SimulateUserActivity")
            ++told;
        return true;
    }

    int told = 0;
};

void processEventsFor(std::chrono::milliseconds time)
{
    QElapsedTimer passed;
    for (passed.start(); passed.elapsed() < time.count();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace

TEST(DisplayWake, TellsTheScreenSaverOnceInAWhile)
{
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    const SessionBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "no dbus-daemon";
    ScreenSaver saver;
    auto connection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "saver");
    ASSERT_TRUE(connection.registerService("org.freedesktop.ScreenSaver"));
    ASSERT_TRUE(connection.registerVirtualObject("/org/freedesktop/ScreenSaver", &saver));

    DisplayWake wake;
    processEventsFor(std::chrono::milliseconds(100));
    EXPECT_EQ(saver.told, 0);
    for (int i = 0; i < 3; ++i)
        wake.userActivity();
    processEventsFor(std::chrono::milliseconds(500));
    EXPECT_EQ(saver.told, 1);
    connection.unregisterObject("/org/freedesktop/ScreenSaver");
}

TEST(DisplayWake, NoBusIsNoError)
{
    DisplayWake().userActivity();

    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    DisplayWake().userActivity();
}
