#include "audio/Playback.h"

#include <algorithm>

namespace velmora {

void Playback::setSource(AudioSource* source)
{
    const std::lock_guard lock(mutex_);
    source_ = source;
}

void Playback::render(float* left, float* right, std::size_t frames, double start)
{
    // If the source is being exchanged, the period is silent.
    const std::unique_lock lock(mutex_, std::try_to_lock);
    if (lock && source_ != nullptr) {
        source_->render(left, right, frames, start);
    } else {
        std::fill_n(left, frames, 0.0F);
        std::fill_n(right, frames, 0.0F);
    }
    ++periods;
}

} // namespace velmora
