#pragma once

#include <cstddef>

namespace velmora {

/// The number of MIDI keys.
constexpr std::size_t kKeys = 128;

constexpr int kLastKey = static_cast<int>(kKeys) - 1;

constexpr int kMiddleC = 60;

/// The number of MIDI channels.
constexpr int kChannels = 16;

} // namespace velmora
