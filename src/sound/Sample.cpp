#include "sound/Sample.h"

#include "base/FormatError.h"

#include <al.h>

#include <utility>

namespace velmora {

namespace {

// See docs/decisions.md, 27.
constexpr float kFirstGain = 0.4F;

/// A released sample stops below this gain.
constexpr double kSilentGain = 0.02;

} // namespace

Sample::Sample(Sample&& other) noexcept
{
    *this = std::move(other);
}

Sample& Sample::operator=(Sample&& other) noexcept
{
    std::swap(sound_, other.sound_);
    std::swap(source_, other.source_);
    std::swap(released_, other.released_);
    std::swap(factor_, other.factor_);
    std::swap(rootPitch_, other.rootPitch_);
    std::swap(gain_, other.gain_);
    return *this;
}

Sample::~Sample()
{
    if (source_ != 0)
        alDeleteSources(1, &source_);
}

void Sample::setBuffer(const Sound& sound, double rootPitch)
{
    rootPitch_ = rootPitch;
    factor_ = 1.0F;
    if (source_ != 0)
        alDeleteSources(1, &source_);
    sound_ = nullptr;
    source_ = 0;
    // See docs/decisions.md, 25.
    alGenSources(1, &source_);
    if (source_ == 0)
        throw FormatError("OpenAL has no source left for it: unload another instrument first");
    alSourcef(source_, AL_GAIN, kFirstGain);
    alSource3f(source_, AL_POSITION, 0.0F, 0.0F, 0.0F);
    alSourcef(source_, AL_PITCH, factor_);
    alSourcei(source_, AL_BUFFER, static_cast<ALint>(sound.buffer()));
    sound_ = &sound;
}

void Sample::play(float volume)
{
    if (source_ == 0)
        return;
    released_ = false;
    alSourcef(source_, AL_GAIN, volume);
    // See docs/decisions.md, 26.
    alSourcePlay(source_);
    gain_ = volume;
}

void Sample::stop()
{
    if (source_ != 0)
        released_ = true;
}

void Sample::silence()
{
    if (source_ == 0)
        return;
    alSourceStop(source_);
    released_ = false;
}

bool Sample::isPlaying() const
{
    ALint state = AL_STOPPED;
    if (source_ != 0)
        alGetSourcei(source_, AL_SOURCE_STATE, &state);
    return state == AL_PLAYING;
}

void Sample::fade(double factor)
{
    if (!released_)
        return;
    gain_ *= factor;
    if (gain_ < kSilentGain) {
        silence();
    } else {
        alSourcef(source_, AL_GAIN, static_cast<float>(gain_));
    }
}

void Sample::tune(double pitch)
{
    const auto factor = static_cast<float>(pitch / rootPitch_);
    if (source_ == 0 || factor == factor_)
        return;
    factor_ = factor;
    alSourcef(source_, AL_PITCH, factor);
}

} // namespace velmora
