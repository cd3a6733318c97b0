#include "app/tuningWarning.h"

#include "app/AppDelegate.h"

#include <cmath>

namespace velmora {

std::string tuningWarning(AppDelegate& application)
{
    constexpr double kHeard = 1.0; // cent
    const Tunings& tunings = application.tunings();
    if (const TuningDocument* document = tunings.current();
        document && !document->warning().empty())
        return document->warning();
    double cents = 0.0;
    application.player().with([&](const Instrument& instrument, const Temperament& temperament) {
        if (const auto* midi = dynamic_cast<const MIDIInstrument*>(&instrument))
            cents = midi->worstError(temperament);
    });
    if (cents < kHeard)
        return {};
    return "in the plain reading, General MIDI plays some keys of \"" + tunings.name() + "\" " +
           std::to_string(std::lround(cents)) + " cents out of tune";
}

} // namespace velmora
