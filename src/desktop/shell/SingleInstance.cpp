#include "desktop/shell/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace velmora {

namespace {

constexpr const char* kService = "org.velmora.Velmora";
constexpr const char* kPath = "/org/velmora/Velmora";
constexpr int kAnswerMilliseconds = 5000;

} // namespace

bool SingleInstance::handOver(const QStringList& paths)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(kService))
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, "open");
    call << paths;
    return bus.call(call, QDBus::Block, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

} // namespace velmora
