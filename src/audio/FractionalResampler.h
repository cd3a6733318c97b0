#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

namespace velmora {

/// Shifts the pitch of a stereo stream by a small ratio, or raises its sample rate. Interpolates
/// with a windowed sinc of 32 taps in 512 phases, with linear interpolation between phases. If the
/// step is always exactly 1, the output is the delayed input.
class FractionalResampler {
public:
    static constexpr std::size_t kTaps = 32;

    /// Number of input frames requested at a time.
    static constexpr std::size_t kBlock = 64;

    /// Delay of the output in frames of the input.
    static constexpr std::size_t kDelay = kTaps / 2;

    FractionalResampler();

    /// Sets the number of input frames per output frame, at most kTaps. What lies
    /// above half of the output's rate is not removed. 2^(cents / 1200) raises the pitch by
    /// `cents`.
    void setStep(double step) { step_ = step; }

    /// Forgets the input, so that the next output frame asks for a block that begins there.
    void clear();

    /// Adds `frames` frames to `left` and `right`. Calls `source(left, right)`, which must write
    /// kBlock frames, whenever it needs more input.
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

    /// Moves the remaining input to the front of the buffers to make room for a block.
    void makeRoom();

    /// Adds up to `frames` frames from the input in the buffers and returns how many.
    std::size_t mixAvailable(float* left, float* right, std::size_t frames);

    std::array<float, kCapacity> left_{};
    std::array<float, kCapacity> right_{};
    std::size_t filled_ = kTaps - 1; ///< Frames in the buffers; they start with silence.
    std::size_t position_ = 0;       ///< The frame under the first tap.
    double phase_ = 0.0;             ///< Fraction of a frame to add to `position_`.
    double step_ = 1.0;
};

} // namespace velmora
