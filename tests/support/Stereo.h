#pragma once

#include "audio/AudioSource.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <vector>

namespace velmora {

/// A stereo sound.
struct Stereo {
    explicit Stereo(std::size_t frames = 0) : left(frames), right(frames) {}

    bool operator==(const Stereo&) const = default;

    std::vector<float> left, right;
};

/// Passes a sound to `process(left, right, frames)` in blocks whose sizes cycle through `sizes`.
template <class Process>
void inBlocks(Stereo& sound, std::initializer_list<std::size_t> sizes, Process&& process)
{
    const auto* size = sizes.begin();
    for (std::size_t done = 0; done < sound.left.size();) {
        const std::size_t frames = std::min(*size, sound.left.size() - done);
        process(sound.left.data() + done, sound.right.data() + done, frames);
        done += frames;
        if (++size == sizes.end())
            size = sizes.begin();
    }
}

/// Renders the next frames of an AudioSource.
template <class Source> Stereo rendered(Source& source, std::size_t frames)
{
    Stereo sound(frames);
    inBlocks(sound, {128}, [&](float* l, float* r, std::size_t n) {
        source.render(l, r, n, AudioSource::kOffline);
    });
    return sound;
}

/// Returns the greatest absolute value.
inline float peak(std::span<const float> sound)
{
    float result = 0.0F;
    for (const float sample : sound)
        result = std::max(result, std::fabs(sample));
    return result;
}

/// Returns the interval from `reference` to `hertz` in cents.
inline double cents(double hertz, double reference)
{
    return 1200.0 * std::log2(hertz / reference);
}

} // namespace velmora
