#include "desktop/shell/SingleInstance.h"

#include "base/escapedPath.h"
#include "platform/pathNames.h"

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
    QStringList names; // D-Bus takes UTF-8 only
    for (const QString& path : paths)
        names += QString::fromStdString(escapePath(pathOf(path)));
    call << names;
    return bus.call(call, QDBus::Block, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void SingleInstance::open(const QStringList& names)
{
    QStringList paths;
    for (const QString& name : names)
        paths += textOf(unescapePath(name.toStdString()));
    emit opened(paths);
}

} // namespace velmora
