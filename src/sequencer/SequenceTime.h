#pragma once

#include <chrono>

namespace velmora {

/// The clock of a sequence that plays or is recorded ticks so often.
constexpr std::chrono::duration<double> kTick{1.0 / 1024.0};

/// The steps of a second at a tempo in beats a minute.
constexpr double stepsPerSecond(double tempo)
{
    return tempo * 0.125;
}

} // namespace velmora
