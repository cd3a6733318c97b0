#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace velmora {

/// A track of a Standard MIDI File that is being written ("Standard MIDI Files 1.0", MIDI
/// Manufacturers Association, RP-001). Times are ticks from the start and must not decrease.
class MidiTrack {
public:
    /// Adds a channel message with its status.
    void addMessage(std::uint64_t tick, std::initializer_list<int> bytes);

    /// Adds a meta event.
    void addMetaEvent(std::uint64_t tick, std::uint8_t type, std::string_view data);

    /// Adds an event of any kind. `data` are its bytes behind the status.
    void addEvent(std::uint64_t tick, std::uint8_t status, std::string_view data);

    /// Ends the track at a tick and returns its chunk. Throws std::length_error if there are more
    /// events than a file can hold.
    std::string end(std::uint64_t tick);

    /// Returns the chunk with which a file begins. `division` is the number of ticks of a beat, or
    /// the SMPTE time of the file.
    static std::string header(std::uint16_t format, std::size_t tracks, std::uint16_t division);

    /// Ends the track and returns a file of format 0 with nothing else.
    std::string finish(std::uint16_t division);

private:
    void addDelta(std::uint64_t tick);

    std::string bytes_;
    std::uint64_t tick_ = 0; ///< Of the last event.
};

} // namespace velmora
