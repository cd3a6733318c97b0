#pragma once

#include <cstddef>

namespace velmora {

/// Something that makes stereo sound, block by block.
class AudioSource {
public:
    virtual ~AudioSource() = default;

    /// Writes the next `frames` frames, from −1 to 1. Called on the audio thread: never waits,
    /// allocates or logs.
    virtual void render(float* left, float* right, std::size_t frames) = 0;
};

} // namespace velmora
