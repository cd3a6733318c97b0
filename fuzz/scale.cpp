// Reads the input as a tuning file or a keyboard mapping; the first byte selects its format. If it
// is accepted, every key has a valid pitch, and what is written of it reads the same.

#include "base/FormatError.h"
#include "base/Log.h"
#include "require.h"
#include "tuning/ExtendedScaleFile.h"
#include "tuning/KeyTuningFile.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleFile.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TuningFile.h"

#include <cmath>
#include <string>

namespace velmora {

namespace {

void requirePitches(const Temperament& temperament)
{
    for (int key = -11; key < 128; ++key) {
        const double hertz = temperament.pitchAt(key);
        require(std::isfinite(hertz) && hertz > 0.0);
        require(std::isfinite(temperament.getTuning(static_cast<unsigned>(key + 12)).cent()));
        temperament.isMapped(key);
    }
}

Scale twelveNotes()
{
    Scale scale;
    for (int i = 1; i <= 12; ++i)
        scale.pitches.emplace_back(Cent(100.0 * i));
    return scale;
}

void readAs(char format, std::span<const std::byte> bytes)
{
    switch (format) {
    case 'm':
        requirePitches(readTuning(bytes, TuningFormat::Frequencies));
        break;
    case 'n': {
        const Scale scale = readScale(bytes);
        const std::string text = writeScale(scale);
        require(writeScale(readScale(std::as_bytes(std::span(text)))) == text);
        requirePitches(ScaleTemperament(scale));
        break;
    }
    case 'a': {
        const MappedScale extended = readExtendedScale(bytes);
        requirePitches(ScaleTemperament(extended.scale, extended.mapping));
        break;
    }
    case 'k': {
        const KeyMapping mapping = readMapping(bytes);
        const std::string text = writeMapping(mapping, 12);
        require(writeMapping(readMapping(std::as_bytes(std::span(text))), 12) == text);
        requirePitches(ScaleTemperament(twelveNotes(), mapping));
        break;
    }
    case 't':
        for (const double hertz : readKeyTunings(bytes).hertz)
            require(std::isfinite(hertz) && hertz > 0.0);
        break;
    default:
        requirePitches(readTuning(bytes, TuningFormat::Scale));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool quiet = (setLogLevel(spdlog::level::off), true);
    if (!quiet || size == 0)
        return 0;
    try {
        readAs(static_cast<char>(data[0]), std::as_bytes(std::span(data, size)).subspan(1));
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
