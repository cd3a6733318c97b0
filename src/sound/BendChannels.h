#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace velmora {

/// Spreads notes over the channels of a General MIDI device, so that each can have its own pitch.
/// A place is the pitch of a note on a keyboard in equal temperament with A at 440 Hz: 60.5 is a
/// quarter tone above middle C.
class BendChannels {
public:
    static constexpr std::size_t kChannels = 16;

    /// The channel of percussion, which is left out.
    static constexpr std::size_t kPercussion = 9;

    /// How far the pitch wheel of each channel has to reach, in semitones.
    static constexpr int kRange = 2;

    /// How a note is to be played.
    struct Voice {
        std::size_t channel = 0;
        int key = 0;        ///< 0…127.
        double cents = 0.0; ///< How far from its place it sounds.
    };

    /// Places a note that starts, of one of several sounds. Notes of one pitch class share a
    /// channel, if there is one. Without, the note takes a channel with the same sound and bend, or
    /// the one that has been silent for the longest time, or, if all sound, the one with the
    /// nearest bend, if possible with the same sound.
    Voice start(double place, std::optional<std::size_t> pitchClass, std::size_t sound = 0);

    /// Ends a note.
    void end(const Voice& voice);

    /// Bends a channel so that one of its keys comes to a place, as far as the wheel reaches.
    void move(std::size_t channel, int key, double place);

    bool isSounding(std::size_t channel) const { return channels_[channel].keys.any(); }

    /// The position of a channel's wheel, with 14 bits.
    int bend(std::size_t channel) const { return channels_[channel].bend; }

    /// The position of a wheel that does not bend.
    static constexpr int kCentre = 8192;

private:
    struct Channel {
        std::bitset<128> keys; ///< Those that sound.
        int bend = kCentre;
        std::size_t sound = 0;      ///< That of its last note.
        std::uint64_t released = 0; ///< When its last key was released; 0 if it never sounded.
    };

    std::size_t findChannel(double place, std::size_t sound) const;

    std::array<Channel, kChannels> channels_;
    std::uint64_t releases_ = 0; ///< Their number.
};

} // namespace velmora
