#pragma once

#include <chrono>

namespace velmora {

/// The steps of a quarter note and of a whole note.
constexpr int kStepsPerBeat = 8;
constexpr int kStepsPerWhole = 4 * kStepsPerBeat;

/// The steps of a bar without a time signature.
constexpr int kStepsPerBar = kStepsPerWhole;

/// The time between two ticks while a sequence plays or records.
constexpr std::chrono::duration<double> kTick{1.0 / 1024.0};

/// The steps of a second at 120 beats a minute in the plain reading.
/// See docs/decisions.md, 83.
constexpr double kPlainStepsPerSecond = 15.0;

} // namespace velmora
