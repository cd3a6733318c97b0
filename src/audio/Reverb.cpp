#include "audio/Reverb.h"

#include "audio/silence.h"

#include <stk/FreeVerb.h>

#include <algorithm>

namespace velmora {

namespace {

/// A small room whose reverberation lasts less than half a second and is slightly dark.
constexpr double kRoomSize = 0.0;
constexpr double kDamping = 0.4;
constexpr float kLevel = 0.12F;

/// The longest delay of an echo.
constexpr double kLongestEchoSeconds = 0.5;

} // namespace

Reverb::Reverb(double rate)
    : silentFramesToSleep_(static_cast<std::size_t>(kLongestEchoSeconds * rate)),
      silentFrames_(silentFramesToSleep_)
{
    // FreeVerb is not told the sample rate: see docs/decisions.md, 127.
    freeVerb_ = std::make_unique<stk::FreeVerb>();
    freeVerb_->setEffectMix(1.0);
    freeVerb_->setRoomSize(kRoomSize);
    freeVerb_->setDamping(kDamping);
}

Reverb::~Reverb() = default;

void Reverb::silence()
{
    if (silentFrames_ >= silentFramesToSleep_)
        return;
    freeVerb_->clear();
    silentFrames_ = silentFramesToSleep_;
}

void Reverb::process(float* left, float* right, std::size_t frames)
{
    if (silentFrames_ >= silentFramesToSleep_ && std::none_of(left, left + frames, isAudible) &&
        std::none_of(right, right + frames, isAudible))
        return;

    for (std::size_t i = 0; i < frames; ++i) {
        freeVerb_->tick(left[i], right[i]);
        left[i] += kLevel * static_cast<float>(freeVerb_->lastOut(0));
        right[i] += kLevel * static_cast<float>(freeVerb_->lastOut(1));
        silentFrames_ = isAudible(left[i]) || isAudible(right[i]) ? 0 : silentFrames_ + 1;
    }
}

} // namespace velmora
