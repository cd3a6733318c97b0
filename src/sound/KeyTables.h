#pragma once

#include <array>
#include <atomic>
#include <cstddef>

constexpr std::size_t kKeys = 128;

/// How each key of live input stands: 0 up, 1 pressed since the last look, 4 held and already taken
/// into account by a sequence document. Written by the receive threads and the main thread.
extern std::array<std::atomic<int>, kKeys> noteStates;

/// The velocity, 0 to 1, with which each key was last pressed.
extern std::array<std::atomic<float>, kKeys> noteVelocities;

/// When each key was last pressed and released, in the seconds of `getTime`. Written before its
/// state.
extern std::array<std::atomic<double>, kKeys> notePressTimes, noteReleaseTimes;
