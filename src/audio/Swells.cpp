#include "audio/Swells.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// After this time about two thirds of a change of a swell have been made.
constexpr double kGlideSeconds = 0.02;

/// A swell that is so near to its target has arrived.
constexpr float kGlided = 1e-4F;

} // namespace

void Swells::set(std::uint8_t group, float gain)
{
    swells_[group].target = gain;
    isGliding_ = isGliding_ || swells_[group].gain != gain;
}

void Swells::step(std::size_t frames, double rate)
{
    const auto part =
        static_cast<float>(1.0 - std::exp(-static_cast<double>(frames) / (kGlideSeconds * rate)));
    for (Swell& swell : swells_) {
        swell.gain += part * (swell.target - swell.gain);
        if (std::fabs(swell.target - swell.gain) < kGlided)
            swell.gain = swell.target;
    }
    isGliding_ =
        std::ranges::any_of(swells_, [](const Swell& one) { return one.gain != one.target; });
}

} // namespace velmora
