#pragma once

#include "support/RiffBytes.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// Functions that build SoundFont banks.
namespace riff {

using Zone = std::vector<std::size_t>; // pairs of a generator and its amount
using Instruments = std::vector<std::pair<std::string, std::vector<Zone>>>;

enum : std::size_t { kRange = 43, kSample = 53, kRoot = 58 };

/// The amount of a range of keys or velocities.
inline std::size_t range(std::size_t lo, std::size_t hi)
{
    return lo | hi << 8;
}

inline std::string field(const std::string& text)
{
    return text + std::string(20 - text.size(), '\0');
}

/// The traits of a sample that most banks of the tests leave alone.
struct SampleTraits {
    std::size_t loopBegin = 0;
    std::size_t loopEnd = 0;
    std::size_t correction = 0; ///< Of the pitch, in cents; 256 is added to a negative one.
    std::size_t link = 0;
};

/// A sample header for the points from `start` to `end` of the pool.
inline std::string sample(const std::string& name, std::size_t start, std::size_t end,
                          std::size_t pitch = 60, std::size_t type = 1, std::size_t rate = 8000,
                          const SampleTraits& traits = {})
{
    return field(name) + numbers({start, end, traits.loopBegin, traits.loopEnd, rate}, 4) +
           numbers({pitch, traits.correction}, 1) + numbers({traits.link, type}, 2);
}

/// A bank of instruments. `version` is the content of "ifil", and `lowBytes` that of "sm24".
inline std::string soundFont(const std::string& headers,
                             const std::string& pool = std::string(200, 'p'),
                             Instruments instruments = {{"i", {{kRange, range(0, 127)}}}},
                             const std::string& version = "", const std::string& lowBytes = "")
{
    instruments.push_back({"EOI", {{}}});
    std::string inst, ibag, igen;
    for (const auto& [name, zones] : instruments) {
        inst += field(name) + numbers({ibag.size() / 4}, 2);
        for (const Zone& zone : zones) {
            ibag += numbers({igen.size() / 4, 0}, 2);
            igen += numbers(zone, 2);
        }
    }
    const std::string pdta = chunk("inst", inst) + chunk("ibag", ibag) + chunk("igen", igen) +
                             chunk("shdr", headers + sample("EOS", 0, 0));
    const std::string info =
        chunk("INAM", "The Bank") + (version.empty() ? "" : chunk("ifil", version));
    const std::string data =
        chunk("smpl", pool) + (lowBytes.empty() ? "" : chunk("sm24", lowBytes));
    return file("sfbk", list("INFO", info) + list("sdta", data) + list("pdta", pdta));
}

} // namespace riff

} // namespace velmora
