#pragma once

#include "import/soundFontBytes.h"
#include "support/Sine.h"

#include <cstddef>
#include <functional>
#include <string>

namespace velmora {

/// Returns a SoundFont with a preset of looped sines on the keys 0 to 127, and a second one that is
/// 10 cents higher. `centsOff` tells by how many whole cents a key is mistuned, at most 99; `rate`,
/// in hertz, tunes all of them, and is 44,000 if they are in tune.
inline std::string sineBank(const std::function<int(int)>& centsOff, std::size_t rate = 44'000)
{
    using namespace riff;
    enum : std::size_t { kInstrument = 41, kFineTune = 52, kModes = 54 };

    std::string igen, ibag;
    for (int key = 0; key < 128; ++key) {
        const auto place = static_cast<std::size_t>(key);
        ibag += numbers({igen.size() / 4, 0}, 2);
        igen += numbers({kRange, range(place, place), kFineTune,
                         static_cast<std::size_t>(65536 + centsOff(key)) % 65536, kModes, 1, kRoot,
                         69, kSample, 0},
                        2);
    }
    ibag += numbers({igen.size() / 4, 0}, 2);
    const auto preset = [](const std::string& name, std::size_t number) {
        return field(name) + numbers({number, 0, number}, 2) + numbers({0, 0, 0}, 4);
    };
    const std::string pgen = numbers({kInstrument, 0, kFineTune, 10, kInstrument, 0, 0, 0}, 2);
    const std::string noModulators(10, '\0');
    const Pcm tone = sine(440.0, 0.05, 44'000.0); // of 100 points a period
    const std::string points = riff::points(tone) + std::string(92, '\0');
    return file(
        "sfbk",
        list("INFO", chunk("ifil", numbers({2, 1}, 2)) +
                         chunk("isng", std::string("EMU8000\0", 8)) +
                         chunk("INAM", std::string("Sines\0", 6))) +
            list("sdta", chunk("smpl", points)) +
            list("pdta",
                 chunk("phdr", preset("Sine", 0) + preset("Higher", 1) + preset("EOP", 2)) +
                     chunk("pbag", numbers({0, 0, 1, 0, 3, 0}, 2)) + chunk("pmod", noModulators) +
                     chunk("pgen", pgen) +
                     chunk("inst",
                           field("Sine") + numbers({0}, 2) + field("EOI") + numbers({128}, 2)) +
                     chunk("ibag", ibag) + chunk("imod", noModulators) +
                     chunk("igen", igen + numbers({0, 0}, 2)) +
                     chunk("shdr", sample("tone", 0, tone.size(), 69, 1, rate, {200, 2000}) +
                                       sample("EOS", 0, 0))));
}

} // namespace velmora
