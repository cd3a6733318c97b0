#pragma once

#include <chrono>

namespace velmora {

// How released keys and the spellings of a temperament fade. See docs/decisions.md, 28.

/// The time from one step of a fade to the next.
constexpr std::chrono::nanoseconds kFadeInterval{16'666'000};

/// The factor by which each step multiplies what fades.
constexpr double kFadeFactor = 0.9;

/// What is below this has faded away.
constexpr double kFaded = 0.02;

} // namespace velmora
