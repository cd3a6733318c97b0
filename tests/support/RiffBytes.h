#pragma once

#include "sound/Pcm.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// Builders of RIFF files and sample banks for tests. Bytes are kept in strings.
namespace riff {

/// Little-endian.
inline std::string number(std::size_t value, int size)
{
    std::string result;
    for (int i = 0; i < size; ++i)
        result += static_cast<char>(value >> 8 * i & 0xFF);
    return result;
}

inline std::string numbers(const std::vector<std::size_t>& values, int size)
{
    std::string result;
    for (const std::size_t value : values)
        result += number(value, size);
    return result;
}

/// Text in a field of that width.
inline std::string field(std::string text, std::size_t width)
{
    text.resize(width);
    return text;
}

/// With the pad byte of an odd one.
inline std::string chunk(const std::string& id, const std::string& body)
{
    return id + number(body.size(), 4) + body + std::string(body.size() % 2, '\0');
}

inline std::string list(const std::string& type, const std::string& body)
{
    return chunk("LIST", type + body);
}

inline std::string file(const std::string& type, const std::string& body)
{
    return chunk("RIFF", type + body);
}

inline std::string name(const std::string& text)
{
    return list("INFO", chunk("INAM", text + '\0'));
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

inline std::span<const std::byte> view(const std::string& bytes)
{
    return std::as_bytes(std::span(bytes));
}

} // namespace riff
