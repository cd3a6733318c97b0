#pragma once

#include <atomic>
#include <cstdint>

namespace velmora {

/// How the velocity of a key-on becomes the velocity of a note. With v from 0 to 1, a key-on sounds
/// with
enum class VelocityCurve {
    Linear, ///< v: as the keyboard sends it.
    Soft,   ///< v^(2/3): a light touch sounds louder.
    Hard,   ///< v^(3/2): it takes a strong touch to be loud.
    Fixed   ///< 100/127, whatever the touch, as on an organ.
};

/// Returns the velocity, from 1/127 to 1, of a note whose key-on has the velocity byte `value`,
/// 1…127.
float velocityOf(VelocityCurve curve, std::uint8_t value);

/// The greatest transposition up or down, and the greatest range of the pitch wheel, in semitones.
constexpr int kMaxTransposition = 24;
constexpr int kMaxBendRange = 12;

/// How received MIDI is played. Written by one thread and read by the MIDI receive threads.
struct PlayingSettings {
    std::atomic<bool> isPlain{false}; ///< True for the plain reading of `midiRead`.

    // For the musical reading:
    std::atomic<VelocityCurve> velocityCurve{VelocityCurve::Linear};
    std::atomic<int> transposition{0}; ///< In semitones, −24…24.
    std::atomic<int> bendRange{2};     ///< Semitones of the full pitch wheel, 0…12; 0 is off.
};

} // namespace velmora
