#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

namespace velmora {

/// Shifts the pitch of a stereo stream by a small ratio: reads it at a step near 1 by a windowed
/// sinc of 32 taps in 512 phases, linearly interpolated. At a step of exactly 1 from the start the
/// output is the input, delayed.
class FractionalResampler {
public:
    static constexpr std::size_t kTaps = 32;

    /// Frames of input asked for at a time.
    static constexpr std::size_t kBlock = 64;

    /// Frames by which the output lags behind the input.
    static constexpr std::size_t kDelay = kTaps / 2;

    FractionalResampler();

    /// Input frames per output frame: 2^(cents / 1200) raises the pitch by `cents`.
    void setStep(double step) { step_ = step; }

    /// Adds `frames` frames to `left` and `right`. `source(left, right)` writes the next kBlock
    /// frames of input; it is called as often as needed.
    template <class Source>
    void mix(float* left, float* right, std::size_t frames, const Source& source)
    {
        for (std::size_t done = 0; done < frames;) {
            if (filled_ - position_ < kTaps) {
                makeRoom();
                source(left_.data() + filled_, right_.data() + filled_);
                filled_ += kBlock;
            }
            done += mixAvailable(left + done, right + done, frames - done);
        }
    }

private:
    static constexpr std::size_t kCapacity = kTaps + kBlock;

    /// Moves what is still needed to the front, so that a block fits behind it.
    void makeRoom();

    /// Adds as many frames as the input at hand gives, `frames` at most, and tells how many.
    std::size_t mixAvailable(float* left, float* right, std::size_t frames);

    std::array<float, kCapacity> left_{};
    std::array<float, kCapacity> right_{};
    std::size_t filled_ = kTaps - 1; ///< Frames of input at hand, silence to begin with.
    std::size_t position_ = 0;       ///< First frame under the taps.
    double phase_ = 0.0;             ///< Fraction of a frame beyond it.
    double step_ = 1.0;
};

} // namespace velmora
