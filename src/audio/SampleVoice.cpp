#include "audio/SampleVoice.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// In an octave.
constexpr double kCents = 1200.0;

} // namespace

void SampleVoice::ring(float full, double frames)
{
    phase = Phase::Ringing;
    fullGain = full;
    gain = frames > 0.0 ? 0.0F : full;
    slope = frames > 0.0 ? full / static_cast<float>(frames) : 0.0F;
}

void SampleVoice::end(double frames)
{
    const float fall = gain / static_cast<float>(frames);
    slope = phase == Phase::Ending ? std::max(slope, fall) : fall;
    phase = Phase::Ending;
}

void SampleVoice::glideTo(float target, double frames)
{
    glide.begin(kCents * std::log2(double{target} / pitch), frames);
    pitch = target;
}

float SampleVoice::heardPitch() const
{
    return glide.isGliding() ? pitch * static_cast<float>(std::exp2(-glide.left() / kCents))
                             : pitch;
}

bool SampleVoice::step(float decay, std::size_t frames)
{
    const float change = slope * static_cast<float>(frames);
    switch (phase) {
    case Phase::Silent:
    case Phase::Held:
        break;
    case Phase::Decaying:
        gain *= decay;
        break;
    case Phase::Ringing:
        gain = std::min(fullGain, gain + change);
        break;
    case Phase::Ending:
        if (gain == 0.0F)
            return false;
        gain = std::max(0.0F, gain - change);
        break;
    }
    return true;
}

} // namespace velmora
