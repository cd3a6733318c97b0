#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace velmora {

/// The gains of the groups of samples, which glide so that they do not step audibly. All are 1 at
/// first.
class Swells {
public:
    /// Lets the gain of a group glide to `gain`.
    void set(std::uint8_t group, float gain);

    /// Sets the gain of a group at once.
    void jump(std::uint8_t group, float gain) { swells_[group] = {gain, gain}; }

    float gain(std::uint8_t group) const { return swells_[group].gain; }

    /// True if the gain of some group changes in the next step.
    bool isGliding() const { return isGliding_; }

    /// Steps the gains by so many frames, which come at `rate` hertz.
    void step(std::size_t frames, double rate);

private:
    struct Swell {
        float gain = 1.0F;
        float target = 1.0F;
    };

    std::array<Swell, std::numeric_limits<std::uint8_t>::max() + 1> swells_{};
    bool isGliding_ = false;
};

} // namespace velmora
