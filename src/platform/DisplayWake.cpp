#include "platform/DisplayWake.h"

#include "base/Log.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

namespace velmora {

namespace {

constexpr std::chrono::seconds kReportInterval(5);

} // namespace

DisplayWake::DisplayWake()
{
    if (QCoreApplication::instance() == nullptr)
        return;
    auto bus = std::make_unique<QDBusConnection>(QDBusConnection::sessionBus());
    if (bus->isConnected())
        bus_ = std::move(bus);
    else
        logger("platform").debug("no session bus: the display may go to sleep");
}

DisplayWake::~DisplayWake() = default;

void DisplayWake::userActivity()
{
    const auto now = std::chrono::steady_clock::now();
    if (!bus_ || (lastReport_ && now - *lastReport_ < kReportInterval))
        return;
    lastReport_ = now;
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                                  QStringLiteral("/org/freedesktop/ScreenSaver"),
                                                  QStringLiteral("org.freedesktop.ScreenSaver"),
                                                  QStringLiteral("SimulateUserActivity"));
    message.setAutoStartService(false);
    bus_->send(message);
}

} // namespace velmora
