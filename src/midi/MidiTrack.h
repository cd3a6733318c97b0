#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace velmora {

/// A Standard MIDI File of format 0 that is being written ("Standard MIDI Files 1.0", MIDI
/// Manufacturers Association, RP-001). Times are ticks from the start and must not decrease.
class MidiTrack {
public:
    /// Adds a channel message with its status.
    void addMessage(std::uint64_t tick, std::initializer_list<int> bytes);

    /// Adds a meta event.
    void addMetaEvent(std::uint64_t tick, std::uint8_t type, std::string_view data);

    /// Ends the track and returns the bytes of the file. `division` is the number of ticks of a
    /// beat. Throws std::length_error if there are more events than a file can hold.
    std::string finish(std::uint16_t division);

private:
    void addDelta(std::uint64_t tick);

    std::string bytes_;
    std::uint64_t tick_ = 0; ///< Of the last event.
};

} // namespace velmora
