#pragma once

#include <cstddef>
#include <vector>

namespace velmora {

/// A look-ahead peak limiter for a stereo stream. No output sample exceeds the ceiling of −0.3
/// dBFS; a stream below the ceiling is only delayed. The gain falls smoothly before a peak arrives
/// and recovers with a time constant of 50 ms.
class PeakLimiter {
public:
    /// The greatest absolute value of an output sample.
    static const float kCeiling;

    /// `rate` is in hertz. Allocates all buffers, so that `process` does not.
    explicit PeakLimiter(double rate);

    /// The delay in frames: 1.5 ms.
    std::size_t delay() const { return lookAhead_ - 1; }

    /// Replaces `frames` frames with the output.
    void process(float* left, float* right, std::size_t frames);

private:
    /// Adds the peak of a frame; returns the gain that keeps the last `lookAhead_` peaks below the
    /// ceiling.
    float windowMinimum(float peak);

    /// Adds the peak of a frame; returns the gain for the oldest frame in the buffer.
    float nextGain(float peak);

    struct Gain {
        float value;
        std::size_t time;
    };

    std::size_t lookAhead_;
    double release_; ///< Fraction of the way back to the target gain that is covered in one frame.

    /// The newest gain. A double, because the last steps of a recovery are too small for a float.
    double recovering_ = 1.0;

    std::vector<float> left_, right_; ///< Ring buffers of the last `lookAhead_` samples.
    std::vector<float> released_;     ///< Ring buffer of their gains.
    double releasedSum_;
    std::size_t index_ = 0; ///< Position of the newest entry in the ring buffers.

    std::vector<Gain>
        minima_; ///< Ring buffer of increasing gains; the first is the window's minimum.
    std::size_t firstMinimum_ = 0, minimaCount_ = 0;
    std::size_t time_ = 0;
};

} // namespace velmora
