#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// Builders of RIFF files for tests. Bytes are kept in strings.
namespace riff {

/// Of `size` bytes each, little-endian as our machines are.
inline std::string numbers(const std::vector<std::size_t>& values, std::size_t size)
{
    std::string result;
    for (const std::size_t& value : values)
        result.append(reinterpret_cast<const char*>(&value), size);
    return result;
}

/// With the pad byte of an odd one.
inline std::string chunk(const std::string& id, const std::string& body)
{
    return id + numbers({body.size()}, 4) + body + std::string(body.size() % 2, '\0');
}

inline std::string list(const std::string& type, const std::string& body)
{
    return chunk("LIST", type + body);
}

inline std::string file(const std::string& type, const std::string& body)
{
    return chunk("RIFF", type + body);
}

/// 16-bit points of a sound.
inline std::string points(const Pcm& pcm)
{
    return std::string(reinterpret_cast<const char*>(pcm.samples.data()), 2 * pcm.samples.size());
}

/// The chunks of a mono 16-bit WAVE file.
inline std::string wave(const std::string& data, std::size_t rate)
{
    return chunk("fmt ", numbers({1, 1}, 2) + numbers({rate, 2 * rate}, 4) + numbers({2, 16}, 2)) +
           chunk("data", data);
}

} // namespace riff

} // namespace velmora
