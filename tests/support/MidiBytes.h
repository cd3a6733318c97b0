#pragma once

#include "midi/messages.h"

#include <cstddef>
#include <initializer_list>
#include <string>

namespace velmora {

/// Functions that build Standard MIDI Files. Bytes are held in strings.
namespace midi {

inline std::string bytes(std::initializer_list<int> values)
{
    return {values.begin(), values.end()};
}

inline std::string number(std::size_t value, int size)
{
    std::string result;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        result += static_cast<char>(value >> shift & 0xFF);
    return result;
}

inline std::string quantity(std::size_t value)
{
    std::string result(1, static_cast<char>(value & 0x7F));
    while (value >>= 7)
        result.insert(0, 1, static_cast<char>((value & 0x7F) | 0x80));
    return result;
}

inline std::string chunk(const std::string& id, const std::string& body)
{
    return id + number(body.size(), 4) + body;
}

inline std::string header(std::size_t format, std::size_t tracks, std::size_t division = 96)
{
    return chunk("MThd", number(format, 2) + number(tracks, 2) + number(division, 2));
}

inline std::string on(std::size_t delta, int key, int velocity = 127, int channel = 0)
{
    return quantity(delta) + bytes({kNoteOn | channel, key, velocity});
}

inline std::string off(std::size_t delta, int key, int channel = 0)
{
    return quantity(delta) + bytes({kNoteOff | channel, key, 64});
}

inline std::string tempo(std::size_t delta, std::size_t microseconds)
{
    return quantity(delta) + bytes({kMetaEvent, kTempo, 3}) + number(microseconds, 3);
}

/// Returns a track chunk with the events and an end-of-track event.
inline std::string track(const std::string& events)
{
    return chunk("MTrk", events + bytes({0, kMetaEvent, kEndOfTrack, 0}));
}

/// Returns a file of format 0.
inline std::string file(const std::string& events, std::size_t division = 96)
{
    return header(0, 1, division) + track(events);
}

} // namespace midi

} // namespace velmora
