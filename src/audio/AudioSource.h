#pragma once

#include <cstddef>

namespace velmora {

/// A source of stereo sound that is rendered block by block.
class AudioSource {
public:
    virtual ~AudioSource() = default;

    /// Writes the next `frames` frames, with samples from −1 to 1. Called on the audio thread, so
    /// it must not wait, allocate or log.
    virtual void render(float* left, float* right, std::size_t frames) = 0;
};

} // namespace velmora
