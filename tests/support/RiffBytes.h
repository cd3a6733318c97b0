#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// Functions that build RIFF files. Bytes are held in strings.
namespace riff {

/// Returns the values as little-endian numbers of `size` bytes each.
inline std::string numbers(const std::vector<std::size_t>& values, std::size_t size)
{
    std::string result;
    for (const std::size_t& value : values)
        result.append(reinterpret_cast<const char*>(&value), size);
    return result;
}

/// Returns a chunk, with a pad byte if its length is odd.
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

/// Returns the 16-bit sample points of a sound.
inline std::string points(const Pcm& pcm)
{
    return std::string(reinterpret_cast<const char*>(pcm.samples.data()), 2 * pcm.samples.size());
}

/// Returns the chunks of a mono 16-bit WAVE file.
inline std::string wave(const std::string& data, std::size_t rate)
{
    return chunk("fmt ", numbers({1, 1}, 2) + numbers({rate, 2 * rate}, 4) + numbers({2, 16}, 2)) +
           chunk("data", data);
}

} // namespace riff

} // namespace velmora
