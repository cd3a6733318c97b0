#pragma once

#include <cstddef>

namespace velmora {

/// The number of MIDI keys.
constexpr std::size_t kKeys = 128;

/// The highest MIDI key.
constexpr int kLastKey = static_cast<int>(kKeys) - 1;

/// The MIDI key of middle C.
constexpr int kMiddleC = 60;

} // namespace velmora
