#include "midi/PlayingSettings.h"

#include <algorithm>
#include <cmath>

namespace velmora {

float velocityOf(VelocityCurve curve, std::uint8_t value)
{
    constexpr float kLeast = 1.0F / 127.0F; // a synthesizer takes velocity 0 as a key-off
    const float velocity = static_cast<float>(value) / 127.0F;
    switch (curve) {
    case VelocityCurve::Soft:
        return std::cbrt(velocity * velocity);
    case VelocityCurve::Hard:
        return std::max(kLeast, velocity * std::sqrt(velocity));
    case VelocityCurve::Fixed:
        return 100.0F / 127.0F;
    case VelocityCurve::Linear:
        break;
    }
    return velocity;
}

} // namespace velmora
