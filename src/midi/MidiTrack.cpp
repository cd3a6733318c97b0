#include "midi/MidiTrack.h"

#include "midi/messages.h"

#include <cassert>
#include <stdexcept>

namespace velmora {

namespace {

/// The greatest value of a variable-length quantity of four bytes.
constexpr std::uint64_t kLongestDelta = 0x0FFFFFFF;

void addNumber(std::string& bytes, std::size_t value, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
}

/// Adds a variable-length quantity of at most `kLongestDelta`.
void addQuantity(std::string& bytes, std::uint64_t value)
{
    for (int shift = 21; shift > 0; shift -= 7) {
        if (value >> shift > 0)
            bytes += static_cast<char>((value >> shift & 0x7F) | 0x80);
    }
    bytes += static_cast<char>(value & 0x7F);
}

/// Adds the head of a meta event with `size` bytes of data.
void addMetaHead(std::string& bytes, std::uint8_t type, std::size_t size)
{
    addNumber(bytes, midi::kMetaEvent, 1);
    addNumber(bytes, type, 1);
    addQuantity(bytes, size);
}

void addChunk(std::string& file, const char* id, const std::string& body)
{
    if (body.size() > 0xFFFFFFFF)
        throw std::length_error("there are more notes than a MIDI file can hold");
    file += id;
    addNumber(file, body.size(), 4);
    file += body;
}

} // namespace

void MidiTrack::addDelta(std::uint64_t tick)
{
    assert(tick >= tick_);
    std::uint64_t delta = tick - tick_;
    tick_ = tick;
    // See docs/decisions.md, 132.
    for (; delta > kLongestDelta; delta -= kLongestDelta) {
        addQuantity(bytes_, kLongestDelta);
        addMetaHead(bytes_, midi::kText, 0);
    }
    addQuantity(bytes_, delta);
}

void MidiTrack::addMessage(std::uint64_t tick, std::initializer_list<int> bytes)
{
    addDelta(tick);
    for (const int byte : bytes)
        bytes_ += static_cast<char>(byte);
}

void MidiTrack::addMetaEvent(std::uint64_t tick, std::uint8_t type, std::string_view data)
{
    addDelta(tick);
    addMetaHead(bytes_, type, data.size());
    bytes_ += data;
}

void MidiTrack::addEvent(std::uint64_t tick, std::uint8_t status, std::string_view data)
{
    addDelta(tick);
    bytes_ += static_cast<char>(status);
    bytes_ += data;
}

std::string MidiTrack::end(std::uint64_t tick)
{
    addMetaEvent(tick, midi::kEndOfTrack, {});
    std::string chunk;
    addChunk(chunk, "MTrk", bytes_);
    return chunk;
}

std::string MidiTrack::header(std::uint16_t format, std::size_t tracks, std::uint16_t division)
{
    std::string body;
    addNumber(body, format, 2);
    addNumber(body, tracks, 2);
    addNumber(body, division, 2);
    std::string chunk;
    addChunk(chunk, "MThd", body);
    return chunk;
}

std::string MidiTrack::finish(std::uint16_t division)
{
    return header(0, 1, division) + end(tick_);
}

} // namespace velmora
