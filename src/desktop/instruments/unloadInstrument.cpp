#include "desktop/instruments/unloadInstrument.h"

#include "app/AppDelegate.h"

namespace velmora {

QString unloadInstrument(AppDelegate& application, std::size_t position)
{
    const QString name = QString::fromStdString(application.instruments().at(position)->title());
    if (application.unloadInstrument(position))
        return {};
    return QObject::tr("%1 is still sounding. Silence everything (Ctrl+.), then unload it.")
        .arg(name);
}

} // namespace velmora
