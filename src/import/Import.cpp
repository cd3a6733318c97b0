#include "import/Import.h"

#include <algorithm>

namespace velmora {

void Import::finish()
{
    // See docs/decisions.md, 22.
    constexpr float kDrawn = 0.5F; // shown as 1: `getVolume` doubles it
    auto& stops = instrument->stops();
    report.ranks = static_cast<std::size_t>(std::ranges::count_if(
        stops, [](const InstrumentStop& stop) { return stop.keysWithSamples() > 0; }));
    stops.front().volume = kDrawn;
}

DecodingOptions Import::decoding() const
{
    const bool isMusical = options.reading == Reading::Musical;
    return {isMusical ? Damage::Refused : Damage::Kept, options.to16Bit, options.toMono, memory};
}

} // namespace velmora
