#include "import/Import.h"

#include "audio/DecodedCache.h"

#include <QStandardPaths>

#include <algorithm>

namespace velmora {

void Import::finish()
{
    // See docs/decisions.md, 22.
    constexpr float kDrawn = 0.5F; // shown as 1: `getVolume` doubles it
    countRanks();
    instrument->stops().front().volume = kDrawn;
}

void Import::countRanks()
{
    report.ranks = static_cast<std::size_t>(
        std::ranges::count_if(instrument->stops(), [](const InstrumentStop& stop) {
            return stop.keysWithSamples() > 0;
        }));
}

DecodedCache& decodedSamples()
{
    constexpr std::uint64_t kMostBytes = std::uint64_t{8} << 30U;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    static DecodedCache cache(folder.toStdString() + "/velmora/samples", kMostBytes);
    return cache;
}

DecodingOptions Import::decoding() const
{
    const bool isMusical = options.reading == Reading::Musical;
    return {isMusical ? Damage::Refused : Damage::Kept, options.to16Bit, options.toMono, memory,
            isMusical ? &decodedSamples() : nullptr};
}

} // namespace velmora
