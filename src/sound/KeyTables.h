#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace velmora {

constexpr std::size_t kKeys = 128;
constexpr int kMiddleC = 60;

/// Those of MIDI.
constexpr int kChannels = 16;

/// How a key stands, in sums: 0 is at rest.
constexpr int kPressed = 1; ///< Since the last look.
constexpr int kWanted = 2;  ///< By a sequence, which plays it or waits for it.
constexpr int kHeld = 4;    ///< And already taken into account by a sequence.

/// How each key of live input stands: up, pressed or held. Written by the receive threads and the
/// main thread.
extern std::array<std::atomic<int>, kKeys> noteStates;

/// The velocity, 0 to 1, with which each key was last pressed.
extern std::array<std::atomic<float>, kKeys> noteVelocities;

/// When each key was last pressed and released, in the seconds of `getTime`. Written before its
/// state.
extern std::array<std::atomic<double>, kKeys> notePressTimes, noteReleaseTimes;

} // namespace velmora
