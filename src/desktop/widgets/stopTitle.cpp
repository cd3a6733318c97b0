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

QString loadStateText(LoadState state)
{
    switch (state) {
    case LoadState::Loaded:
        return {};
    case LoadState::Loading:
        return QObject::tr("This stop is being loaded. It sounds as soon as all its pipes are "
                           "there.");
    case LoadState::Stopped:
        return QObject::tr("This stop is not loaded, because the loading was stopped.");
    case LoadState::Unwanted:
        return QObject::tr("This stop is not loaded, because only the drawn stops were loaded.");
    case LoadState::TooLarge:
        return QObject::tr("This stop is not loaded, because it does not fit into the memory.");
    case LoadState::Unusable:
        return QObject::tr("None of the files of this stop can be used. The import report says "
                           "why.");
    }
    return {};
}

bool isPlayedFromConsole(AppDelegate& application)
{
    std::size_t stops = 0;
    application.player().with(
        [&](const Instrument& instrument, const Temperament&) { stops = instrument.numStops(); });
    return application.organ().definition() != nullptr || stops > kListedStops;
}

} // namespace velmora
