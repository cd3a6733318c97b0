#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace velmora {

/// How notes that sound take over a pitch that has changed.
struct Glide {
    /// The longest glide, in seconds.
    static constexpr double kLongest = 0.5;

    double seconds = 0.0;      ///< 0 for at once.
    bool movesSounding = true; ///< If false, a note keeps its pitch until it is struck again.

    bool operator==(const Glide&) const = default;
};

/// A glide of a pitch to its target. It is even, and never so steep that its steps could be heard:
/// a wide one takes longer than it should. See docs/decisions.md, 178.
class GlidePath {
public:
    /// The frames after which a pitch that glides must be set again.
    static constexpr std::size_t kStep = 64;

    /// How far the pitch goes in each step, at most.
    static constexpr double kSteepest = 2.0;

    /// The target moves up by `cents`. The pitch reaches it after `frames`; 0 for at once.
    void begin(double cents, double frames)
    {
        left_ = frames > 0.0 ? left_ + cents : 0.0;
        slope_ = std::min(std::fabs(left_) / std::max(frames, 1.0), kSteepest / kStep);
    }

    bool isGliding() const { return left_ != 0.0; }

    /// How far above the pitch its target still is, in cents.
    double left() const { return left_; }

    void step(std::size_t frames)
    {
        const double length = slope_ * static_cast<double>(frames);
        // What is smaller than rounding errors is not a step.
        constexpr double kArrived = 1e-6;
        left_ = std::fabs(left_) <= length + kArrived ? 0.0 : left_ - std::copysign(length, left_);
    }

private:
    double left_ = 0.0;
    double slope_ = 0.0; ///< In cents per frame.
};

} // namespace velmora
