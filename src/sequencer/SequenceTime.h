#pragma once

#include "base/Reading.h"

#include <chrono>

namespace velmora {

/// The steps of a beat and of a bar as the piano roll draws them. Sequences have no time signature:
/// a bar has four beats.
constexpr int kStepsPerBeat = 8;
constexpr int kStepsPerBar = 4 * kStepsPerBeat;

/// The time between two ticks while a sequence plays or records.
constexpr std::chrono::duration<double> kTick{1.0 / 1024.0};

/// Returns the number of steps in a second at a tempo in beats a minute.
constexpr double stepsPerSecond(double tempo, Reading reading)
{
    // See docs/decisions.md, 83.
    return reading == Reading::Musical ? tempo * 16.0 / 120.0 : tempo * 0.125;
}

} // namespace velmora
