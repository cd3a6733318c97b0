#pragma once

#include <cstddef>
#include <vector>

namespace velmora {

/// A look-ahead peak limiter for a stereo stream: no sample leaves it above the ceiling of
/// −0.3 dBFS, and below the ceiling it changes nothing but the time. The gain is in place before
/// the peak arrives, without a step, and recovers with a time constant of 50 ms.
class PeakLimiter {
public:
    /// The greatest absolute value of a sample that leaves.
    static const float kCeiling;

    /// Makes its buffers; `process` allocates nothing.
    explicit PeakLimiter(double rate);

    /// Frames by which the output lags: 1.5 ms.
    std::size_t delay() const { return lookAhead_ - 1; }

    void process(float* left, float* right, std::size_t frames);

private:
    /// The gain at which the last `lookAhead_` peaks, `peak` the newest, pass the ceiling.
    float windowMinimum(float peak);

    /// The gain for the oldest sample in the buffer, after a new one with `peak` has come in.
    float nextGain(float peak);

    struct Gain {
        float value;
        std::size_t time;
    };

    std::size_t lookAhead_;
    double release_; ///< Share of the way back to the wanted gain made in one frame.

    double recovering_ =
        1.0; ///< The newest gain; steps as small as its last ones vanish in a float.

    std::vector<float> left_, right_; ///< The last `lookAhead_` samples, a ring.
    std::vector<float> released_;     ///< The gains behind them, a ring.
    double releasedSum_;
    std::size_t index_ = 0; ///< Of the newest entry in the rings.

    std::vector<Gain> minima_; ///< Rising gains of the window, a ring; the first is the lowest.
    std::size_t firstMinimum_ = 0, minimaCount_ = 0;
    std::size_t time_ = 0;
};

} // namespace velmora
