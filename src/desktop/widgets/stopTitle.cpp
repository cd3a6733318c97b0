#include "desktop/widgets/stopTitle.h"

#include "app/AppDelegate.h"

namespace velmora {

namespace {

/// As many stops as a list of sliders shows at once.
constexpr std::size_t kListedStops = 8;

} // namespace

QString stopTitle(const Instrument& instrument, std::size_t stop)
{
    QString name = QString::fromStdString(instrument.stopName(stop));
    if (!name.isEmpty())
        return name;
    return instrument.numStops() > 1 ? QObject::tr("Stop %1").arg(stop + 1) : QObject::tr("Volume");
}

bool isPlayedFromConsole(AppDelegate& application)
{
    std::size_t stops = 0;
    application.player().with(
        [&](const Instrument& instrument, const Temperament&) { stops = instrument.numStops(); });
    return application.organ().definition() != nullptr || stops > kListedStops;
}

} // namespace velmora
