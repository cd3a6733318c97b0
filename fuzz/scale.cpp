// Reads the input as a tuning file; the first byte selects its format. If it is accepted, every key
// has a valid pitch.

#include "base/FormatError.h"
#include "base/Log.h"
#include "require.h"
#include "tuning/TuningFile.h"

#include <cmath>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool quiet = (setLogLevel(spdlog::level::off), true);
    if (!quiet || size == 0)
        return 0;
    const auto format = data[0] == 'm' ? TuningFormat::Frequencies : TuningFormat::Scale;
    try {
        const auto bytes = std::as_bytes(std::span(data, size)).subspan(1);
        const Temperament temperament = readTuning(bytes, format);
        for (unsigned long key = 0; key < 128; ++key) {
            const double hertz = temperament.getPitch(key);
            require(std::isfinite(hertz) && hertz > 0.0);
            require(std::isfinite(temperament.getTuning(key).cent()));
        }
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
