#pragma once

#include "support/RiffBytes.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// Functions that build GigaSampler banks.
namespace riff {

/// What chooses between the recordings of a region.
enum : std::size_t {
    kSide = 0x80,
    kLayers = 0x81,
    kVelocities = 0x82,
    kRelease = 0x84,
    kKeySwitch = 0x85,
    kRoundRobin = 0x86,
};

/// A dimension of a region: what chooses, the bits, and the zones, which version 2 leaves at 0.
struct Dimension {
    std::size_t choice, bits, zones = 0;
};

/// The chunk "3lnk" of version 2, with 172 bytes, or 3, with 1,092.
inline std::string links(const std::vector<Dimension>& dimensions,
                         const std::vector<std::size_t>& waves, bool isVersion3 = false)
{
    std::string bytes = numbers({waves.size()}, 4);
    for (const auto& [choice, bits, zones] : dimensions)
        bytes += numbers({choice, bits, 0, 0, zones, 0, 0, 0}, 1);
    bytes.resize(isVersion3 ? 68 : 44);
    bytes += numbers(waves, 4);
    bytes.resize(isVersion3 ? 1092 : 172, '\xFF');
    return chunk("3lnk", bytes);
}

/// The chunk "wsmp"; attenuation in decibels, and a loop if it is longer than 0.
inline std::string tuning(std::size_t note, std::size_t cents = 0, std::size_t decibels = 0,
                          std::size_t loopBegin = 0, std::size_t loopLength = 0)
{
    std::string bytes = numbers({20}, 4) + numbers({note, cents}, 2) +
                        numbers({decibels * 655'360, 0, loopLength > 0}, 4);
    if (loopLength > 0)
        bytes += numbers({16, 0, loopBegin, loopLength}, 4);
    return chunk("wsmp", bytes);
}

/// The articulation of a recording: the limits of its velocities for versions 2 and 3 (of the first
/// dimension), and whether it follows the keys.
inline std::string articulation(std::size_t limit2, std::size_t limit3 = 0, bool followsKeys = true)
{
    std::string bytes(148, '\0');
    bytes[108] = followsKeys ? 1 : 0;
    bytes[124] = static_cast<char>(limit2);
    bytes[140] = static_cast<char>(limit3);
    return chunk("3ewa", bytes);
}

inline std::string recording(const std::string& chunks)
{
    return list("3ewl", chunks);
}

inline std::string regionOf(std::size_t lo, std::size_t hi, const std::string& chunks,
                            const std::string& recordings = "")
{
    return list("rgn ", chunk("rgnh", numbers({lo, hi, 0, 127, 0, 0}, 2)) + chunks +
                            list("3prg", recordings));
}

inline std::string instrumentOf(const std::string& text, const std::string& regions)
{
    return list("ins ", list("INFO", chunk("INAM", text)) + list("lrgn", regions));
}

inline std::string bankOf(const std::string& waves, const std::string& instruments,
                          const std::string& more = "")
{
    return file("DLS ", more + list("wvpl", waves) + list("lins", instruments));
}

} // namespace riff

} // namespace velmora
