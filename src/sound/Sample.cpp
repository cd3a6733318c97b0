#include "sound/Sample.h"

#include "audio/SampleRenderer.h"
#include "base/fading.h"

namespace velmora {

void Sample::setBuffer(const Sound& sound, double rootPitch)
{
    if (source_ != 0)
        sound_->renderer().device(id_.device).remove(id_.number);
    *this = Sample();
    rootPitch_ = rootPitch;
    SampleVoices& device = sound.renderer().device(sound.device());
    // See docs/decisions.md, 25.
    id_ = {sound.device(), device.add(sound.buffer())};
    source_ = device.source(id_.number);
    sound_ = &sound;
}

void Sample::play(float volume)
{
    if (source_ == 0)
        return;
    sound_->renderer().start(id_, volume, factor_);
    released_ = false;
    isPlaying_ = true;
    gain_ = volume;
}

void Sample::stop()
{
    if (source_ == 0)
        return;
    if (isPlaying_ && !released_)
        sound_->renderer().release(id_);
    released_ = true;
}

void Sample::silence()
{
    released_ = false;
    isPlaying_ = false;
}

void Sample::fade(double factor)
{
    if (!released_)
        return;
    gain_ *= factor;
    if (gain_ < kFaded)
        silence();
}

void Sample::tune(double pitch)
{
    const auto factor = static_cast<float>(pitch / rootPitch_);
    if (source_ == 0 || factor == factor_)
        return;
    factor_ = factor;
    if (isPlaying_)
        sound_->renderer().setPitch(id_, factor);
}

} // namespace velmora
