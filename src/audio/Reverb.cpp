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

/// The rate for which FreeVerb's delays are made.
constexpr double kRateOfTheRoom = 44100.0;

/// The longest delay of an echo.
constexpr double kLongestEchoSeconds = 0.5;

} // namespace

Reverb::Reverb(double rate)
    : framesPerTick_(std::max(1, static_cast<int>(rate / kRateOfTheRoom))),
      silentFramesToSleep_(static_cast<std::size_t>(kLongestEchoSeconds * rate)),
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
    sums_ = from_ = to_ = {};
    silentFrames_ = silentFramesToSleep_;
}

void Reverb::tick(float& left, float& right)
{
    sums_[0] += left;
    sums_[1] += right;
    if (++frame_ == framesPerTick_) {
        frame_ = 0;
        freeVerb_->tick(sums_[0] / framesPerTick_, sums_[1] / framesPerTick_);
        from_ = to_;
        to_ = {freeVerb_->lastOut(0), freeVerb_->lastOut(1)};
        sums_ = {};
    }
    const double part = static_cast<double>(frame_ + 1) / framesPerTick_;
    left += kLevel * static_cast<float>(from_[0] + part * (to_[0] - from_[0]));
    right += kLevel * static_cast<float>(from_[1] + part * (to_[1] - from_[1]));
}

void Reverb::process(float* left, float* right, std::size_t frames)
{
    if (silentFrames_ >= silentFramesToSleep_ && std::none_of(left, left + frames, isAudible) &&
        std::none_of(right, right + frames, isAudible))
        return;

    for (std::size_t i = 0; i < frames; ++i) {
        tick(left[i], right[i]);
        silentFrames_ = isAudible(left[i]) || isAudible(right[i]) ? 0 : silentFrames_ + 1;
    }
}

} // namespace velmora
